import { onBeforeUnmount } from 'vue'
import type { Offset } from '@/util/DragTracker'
import { DragTracker } from '@/util/DragTracker'

const MAIN_BUTTON = 0

export interface WindowDrag {
  onPointerdown: (event: PointerEvent) => void
  onPointermove: (event: PointerEvent) => void
  onPointerup: (event: PointerEvent) => void
  onPointercancel: () => void
}

// Handlers for an area that drags the window: the pointer's way, gathered to at most one move per animation frame.
// Buttons inside the area keep their clicks.
export function useWindowDrag(move: (offset: Offset) => void, mayDrag: () => boolean): WindowDrag {
  let tracker: DragTracker | null = null
  let frame = 0

  const flush = () => {
    frame = 0
    const offset = tracker?.take()
    if (offset) move(offset)
  }
  const stop = () => {
    cancelAnimationFrame(frame)
    flush()
    tracker = null
  }
  onBeforeUnmount(stop)

  return {
    onPointerdown(event) {
      if (event.button !== MAIN_BUTTON || !mayDrag()) return
      if ((event.target as Element).closest('button')) return
      tracker = new DragTracker(event.screenX, event.screenY)
      ;(event.currentTarget as Element).setPointerCapture(event.pointerId)
    },
    onPointermove(event) {
      if (!tracker) return
      tracker.moveTo(event.screenX, event.screenY)
      frame ||= requestAnimationFrame(flush)
    },
    onPointerup(event) {
      tracker?.moveTo(event.screenX, event.screenY)
      stop()
    },
    onPointercancel: stop,
  }
}
