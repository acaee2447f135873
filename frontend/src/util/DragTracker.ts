export interface Offset {
  x: number
  y: number
}

// Turns the pointer's way over the screen into offsets for the window. Screen positions are used because they do
// not change when the window moves under the pointer. What is handed out is whole pixels; the rest is kept, so
// that the sum of all offsets never strays from the pointer's way.
export class DragTracker {
  private handledX: number
  private handledY: number
  private latestX: number
  private latestY: number

  // Where the drag starts, in logical pixels of the screen.
  constructor(screenX: number, screenY: number) {
    this.handledX = this.latestX = screenX
    this.handledY = this.latestY = screenY
  }

  moveTo(screenX: number, screenY: number): void {
    this.latestX = screenX
    this.latestY = screenY
  }

  // The offset since the last take(), or null if there is none.
  take(): Offset | null {
    const x = Math.trunc(this.latestX - this.handledX)
    const y = Math.trunc(this.latestY - this.handledY)
    if (x === 0 && y === 0) return null
    this.handledX += x
    this.handledY += y
    return { x, y }
  }
}
