import { describe, expect, it } from 'vitest'
import { DragTracker } from '@/util/DragTracker'

describe('DragTracker', () => {
  it('gives the way since the last offset', () => {
    const tracker = new DragTracker(100, 200)
    tracker.moveTo(110, 195)
    expect(tracker.take()).toEqual({ x: 10, y: -5 })
    tracker.moveTo(111, 195)
    expect(tracker.take()).toEqual({ x: 1, y: 0 })
  })

  it('gathers several moves into one offset', () => {
    const tracker = new DragTracker(0, 0)
    tracker.moveTo(50, 50)
    tracker.moveTo(7, 8)
    expect(tracker.take()).toEqual({ x: 7, y: 8 })
  })

  it('gives nothing when there is no way', () => {
    const tracker = new DragTracker(5, 5)
    expect(tracker.take()).toBeNull()
    tracker.moveTo(6, 6)
    tracker.moveTo(5, 5)
    expect(tracker.take()).toBeNull()
  })

  it('gives whole pixels that add up to the way on a scaled screen', () => {
    const tracker = new DragTracker(0, 0)
    const sum = { x: 0, y: 0 }
    for (let step = 1; step <= 100; ++step) {
      tracker.moveTo(step * 0.8, step * -0.4)
      const offset = tracker.take()
      if (!offset) continue
      expect(Number.isInteger(offset.x) && Number.isInteger(offset.y)).toBe(true)
      sum.x += offset.x
      sum.y += offset.y
    }
    expect(sum).toEqual({ x: 80, y: -40 })
  })
})
