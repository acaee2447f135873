// Behind the newest picture by more than this, seconds, the player hurries; the last one makes it jump.
const HURRY_FROM_S = 0.1
const RUN_FROM_S = 0.3
const JUMP_FROM_S = 1

export interface Pace {
  rate: number
  jump: boolean
}

// How to play on when the newest picture lies this far ahead.
export function paceFor(behindS: number): Pace {
  if (behindS > JUMP_FROM_S) return { rate: 1, jump: true }
  if (behindS > RUN_FROM_S) return { rate: 3, jump: false }
  if (behindS > HURRY_FROM_S) return { rate: 1.3, jump: false }
  return { rate: 1, jump: false }
}

const SHORTEST_FRAME_MS = 5
const LONGEST_FRAME_MS = 40

// The time that a picture gets on the player's timeline: as long as the one before it lasted on the device, but
// never so long that the player would still be busy with it when the next one comes.
export function frameDurationMs(captureUs: number, previousCaptureUs: number | null): number {
  if (previousCaptureUs === null) return LONGEST_FRAME_MS
  const tookMs = Math.trunc((captureUs - previousCaptureUs) / 1000)
  return Math.min(Math.max(tookMs, SHORTEST_FRAME_MS), LONGEST_FRAME_MS)
}
