import { beforeEach, describe, expect, it, vi } from 'vitest'
import { H264Player } from '@/stream/H264Player'
import { frameDurationMs, paceFor } from '@/stream/liveEdge'
import type { VideoFrame } from '@/stream/wire/stream'

interface Options {
  onReady: (isReset: boolean, source: unknown) => void
  onError: (error: { name: string }) => void
}

const muxers = vi.hoisted(
  () =>
    [] as {
      options: unknown
      fed: { duration: number; video: Uint8Array }[]
      released: number
      destroyed: boolean
    }[],
)
vi.mock('jmuxer/src/jmuxer.js', () => ({
  default: class {
    readonly record
    constructor(options: unknown) {
      this.record = {
        options,
        fed: [] as { duration: number; video: Uint8Array }[],
        released: 0,
        destroyed: false,
      }
      muxers.push(this.record)
    }
    feed(data: { duration: number; video: Uint8Array }): void {
      this.record.fed.push(data)
    }
    releaseBuffer(): void {
      ++this.record.released
    }
    destroy(): void {
      this.record.destroyed = true
    }
  },
}))

function frame(id: number, keyFrame = false, captureMs = id * 40): VideoFrame {
  return {
    frameId: id,
    captureUs: captureMs * 1000,
    keyFrame,
    data: new Uint8Array([id]),
    width: 1,
    height: 1,
  }
}

function fedIds(index: number): number[] {
  return muxers[index]!.fed.map(({ video }) => video[0]!)
}

function setUp() {
  const video = document.createElement('video')
  const ends = { start: 0, end: 0 }
  const buffered = { length: 1, start: () => ends.start, end: () => ends.end }
  Object.defineProperty(video, 'buffered', { value: buffered })
  video.play = vi.fn(() => Promise.resolve())
  video.load = vi.fn()
  const onBroken = vi.fn()
  const player = new H264Player(video, { onBroken })
  const buffer = new EventTarget()
  const options = (index = 0) => muxers[index]!.options as Options
  const ready = (index = 0) => {
    options(index).onReady(false, { sourceBuffers: [buffer] })
  }
  return { video, ends, onBroken, player, buffer, options, ready }
}

beforeEach(() => {
  muxers.splice(0)
})

describe('the player', () => {
  it('waits for the media source with the newest key frame and what follows it', () => {
    const { player, ready } = setUp()
    for (const [id, key] of [
      [1, true],
      [2, false],
      [3, true],
      [4, false],
    ] as const)
      player.feed(frame(id, key))
    expect(fedIds(0)).toEqual([])
    ready()
    expect(fedIds(0)).toEqual([3, 4])
    player.feed(frame(5))
    expect(fedIds(0)).toEqual([3, 4, 5])
  })

  it('passes on what came while the buffer was busy, and plays', () => {
    const { player, ready, buffer, video } = setUp()
    ready()
    player.feed(frame(1, true))
    player.feed(frame(2))
    buffer.dispatchEvent(new Event('updateend'))
    expect(muxers[0]!.released).toBe(1)
    expect(video.play).toHaveBeenCalled()
  })

  it('hurries after the newest picture and jumps over a backlog', () => {
    const { player, ready, buffer, video, ends } = setUp()
    ready()
    player.feed(frame(1, true))
    const after = (end: number) => {
      ends.end = end
      buffer.dispatchEvent(new Event('updateend'))
      return [video.playbackRate, video.currentTime]
    }
    expect(after(0.05)).toEqual([1, 0])
    expect(after(0.2)).toEqual([1.3, 0])
    expect(after(0.5)).toEqual([3, 0])
    expect(after(4)).toEqual([1, 3.99])
  })

  it('begins anew when the buffer fails, and says that the picture is lost', async () => {
    const { player, ready, options, onBroken, video } = setUp()
    ready()
    player.feed(frame(1, true))
    options().onError({ name: 'buffer' })
    options().onError({ name: 'buffer' })
    await Promise.resolve()
    expect(onBroken).toHaveBeenCalledTimes(1)
    expect(muxers.map(({ destroyed }) => destroyed)).toEqual([true, false])
    ready(1)
    player.feed(frame(7, true))
    expect(fedIds(1)).toEqual([7])
    player.destroy()
    expect(muxers[1]!.destroyed).toBe(true)
    expect(video.hasAttribute('src')).toBe(false)
  })
})

describe('the pace', () => {
  it.each([
    [0, 1, false],
    [0.1, 1, false],
    [0.11, 1.3, false],
    [0.31, 3, false],
    [1.01, 1, true],
  ])('%f s behind', (behind, rate, jump) => {
    expect(paceFor(behind)).toEqual({ rate, jump })
  })

  it.each([
    [40_000, null, 40],
    [40_000, 20_000, 20],
    [9_000_000, 0, 40],
    [20_500, 20_000, 5],
    [10_000, 20_000, 5],
  ])('a picture of %i us after one of %s us lasts %i ms', (capture, previous, duration) => {
    expect(frameDurationMs(capture, previous)).toBe(duration)
  })
})
