import { TOUCH_ACTION } from '@/stream/StreamClient'
import type { Point } from './geometry'

// The device knows ten fingers; a wheel gesture may need two.
const MAX_POINTERS = 8
const NO_FINGER: Point = { x: -1, y: -1 }

export type SendTouch = (action: number, points: Point[]) => void

// The fingers on the remote screen: those of a wheel gesture first, then the pointers in the order in which they
// came down. Every change is sent with all of them; moves at most once per animation frame, and always before what
// follows them. Positions are remote pixels.
export class FingerBoard {
  private readonly pointers = new Map<number, Point>()
  private gesture: Point[] = []
  private frame = 0

  constructor(private readonly sendTouch: SendTouch) {}

  press(pointerId: number, point: Point): void {
    if (this.pointers.has(pointerId) || this.pointers.size >= MAX_POINTERS) return
    this.flush()
    this.pointers.set(pointerId, point)
    this.send(TOUCH_ACTION.down)
  }

  move(pointerId: number, point: Point): void {
    const before = this.pointers.get(pointerId)
    if (!before || (before.x === point.x && before.y === point.y)) return
    this.pointers.set(pointerId, point)
    this.frame ||= requestAnimationFrame(() => {
      this.frame = 0
      this.send(TOUCH_ACTION.move)
    })
  }

  release(pointerId: number): void {
    if (!this.pointers.has(pointerId)) return
    this.flush()
    this.pointers.delete(pointerId)
    this.send(TOUCH_ACTION.up)
  }

  // Lifts every pointer, as when the window loses the focus.
  releaseAll(): void {
    for (const pointerId of [...this.pointers.keys()]) this.release(pointerId)
  }

  gestureDown(points: Point[]): void {
    this.flush()
    this.gesture = points
    this.send(TOUCH_ACTION.down)
  }

  gestureMove(points: Point[]): void {
    this.gesture = points
    this.send(TOUCH_ACTION.move)
  }

  // The up message still tells where the gesture's fingers were: the device lifts those that came down together.
  gestureUp(points: Point[]): void {
    this.gesture = points
    this.send(TOUCH_ACTION.up)
    this.gesture = []
  }

  private flush(): void {
    if (!this.frame) return
    cancelAnimationFrame(this.frame)
    this.frame = 0
    this.send(TOUCH_ACTION.move)
  }

  private send(action: number): void {
    const points = [...this.gesture, ...this.pointers.values()]
    this.sendTouch(action, points.length ? points : [NO_FINGER])
  }
}
