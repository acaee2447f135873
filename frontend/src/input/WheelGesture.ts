import type { FingerBoard } from './FingerBoard'
import type { Point, Size } from './geometry'

export const GESTURE_INTERVAL_MS = 50
const UNITS_PER_NOTCH = 120
const STEPS_PER_NOTCH = 4
// A notch spans a tenth of the remote screen's height.
const NOTCH_OF_HEIGHT = 0.1
// Less than this is done in one go, remote pixels.
const JUMP_BELOW_PX = 25

export interface WheelTurn {
  // How far the wheel was turned, in eighths of a degree (120 a notch), up and left positive.
  angle: Point
  // The same in pixels, from devices that tell it; null from others.
  pixels: Point | null
  // Fingers that move apart or together, instead of one that scrolls.
  pinch: boolean
}

interface Gesture {
  current: Point
  target: Point
  step: number
  // Between the two fingers of a pinch.
  centre: Point | null
}

function stepOf(remote: Size): number {
  return Math.trunc((remote.height * NOTCH_OF_HEIGHT) / STEPS_PER_NOTCH)
}

function distanceOf({ angle, pixels }: WheelTurn, remote: Size): Point {
  if (pixels && (pixels.x !== 0 || pixels.y !== 0)) return pixels
  const unit = STEPS_PER_NOTCH * stepOf(remote)
  const toPixels = (turned: number) => Math.round((unit * turned) / UNITS_PER_NOTCH)
  return { x: toPixels(angle.x), y: toPixels(angle.y) }
}

function dragOf(
  centre: Point,
  { x: dx, y: dy }: Point,
  landscape: boolean,
): Pick<Gesture, 'current' | 'target'> {
  // Turned with the picture: what is vertical on the desk's screen is horizontal on the device.
  const [alongX, alongY] = landscape ? [-dy, -dx] : [dx, dy]
  return {
    current: { x: centre.x - alongX, y: centre.y - alongY },
    target: { x: centre.x + alongX, y: centre.y + alongY },
  }
}

function pinchOf(centre: Point, dy: number): Pick<Gesture, 'current' | 'target'> {
  const inner = { x: centre.x, y: centre.y + Math.trunc(dy / 2) }
  const outer = { x: centre.x, y: centre.y + dy }
  return dy >= 1 ? { current: inner, target: outer } : { current: outer, target: inner }
}

function advanced(current: number, target: number, step: number): number {
  const remaining = Math.abs(target - current)
  // On very high screens a step may be so long that it would swing about the target.
  if (remaining < JUMP_BELOW_PX || Math.abs(remaining - step) >= remaining) return target
  return target > current ? current + step : current - step
}

// Turns the wheel into a finger that scrolls or two that pinch, step by step. What is turned while a gesture is
// under way is left out.
export class WheelGestures {
  private gesture: Gesture | null = null
  private timer: ReturnType<typeof setInterval> | undefined

  constructor(private readonly board: FingerBoard) {}

  // `centre`: the remote pixel under the pointer.
  turn(turn: WheelTurn, centre: Point, remote: Size, landscape: boolean): void {
    if (this.gesture) return
    const distance = distanceOf(turn, remote)
    const path = turn.pinch ? pinchOf(centre, distance.y) : dragOf(centre, distance, landscape)
    if (path.current.x === path.target.x && path.current.y === path.target.y) return
    this.gesture = { ...path, step: stepOf(remote), centre: turn.pinch ? centre : null }
    this.board.gestureDown(this.points(this.gesture))
    this.timer = setInterval(() => {
      this.advance()
    }, GESTURE_INTERVAL_MS)
  }

  // Lifts the gesture's fingers where they are.
  stop(): void {
    clearInterval(this.timer)
    if (this.gesture) this.board.gestureUp(this.points(this.gesture))
    this.gesture = null
  }

  private advance(): void {
    const { gesture } = this
    if (!gesture) return
    const { current, target, step } = gesture
    if (current.x === target.x && current.y === target.y) {
      this.stop()
      return
    }
    gesture.current = { x: advanced(current.x, target.x, step), y: advanced(current.y, target.y, step) }
    this.board.gestureMove(this.points(gesture))
  }

  private points({ current, centre }: Gesture): Point[] {
    return centre ? [{ x: centre.x, y: 2 * centre.y - current.y }, current] : [current]
  }
}
