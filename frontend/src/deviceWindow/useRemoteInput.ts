import { onBeforeUnmount, onMounted } from 'vue'
import { FingerBoard } from '@/input/FingerBoard'
import { remotePixel, type Point, type Size } from '@/input/geometry'
import { KeyInput } from '@/input/KeyInput'
import { WheelGestures, type WheelTurn } from '@/input/WheelGesture'
import type { StreamClient } from '@/stream/StreamClient'

const MAIN_BUTTON = 0
const UNITS_PER_NOTCH = 120

export interface RemoteScreen {
  // Null while nothing can be sent.
  stream: () => StreamClient | null
  // The remote screen in portrait, pixels.
  size: () => Size
  landscape: () => boolean
  // The element that shows exactly the picture.
  element: () => HTMLElement | undefined
}

type LegacyWheelEvent = WheelEvent & { wheelDeltaX?: number; wheelDeltaY?: number }

// A mouse wheel turns in whole notches; what does not comes from a touch pad, which tells pixels.
function wheelTurn(event: LegacyWheelEvent): WheelTurn {
  const angle = { x: event.wheelDeltaX ?? 0, y: event.wheelDeltaY ?? 0 }
  const notches = angle.x % UNITS_PER_NOTCH === 0 && angle.y % UNITS_PER_NOTCH === 0
  const pixels = { x: -Math.round(event.deltaX), y: -Math.round(event.deltaY) }
  return { angle, pixels: notches ? null : pixels, pinch: event.ctrlKey }
}

// Calls back when the window loses the focus, is hidden, or the component goes.
function useWhenLeft(leave: () => void): void {
  const onVisibility = () => {
    if (document.hidden) leave()
  }
  onMounted(() => {
    window.addEventListener('blur', leave)
    document.addEventListener('visibilitychange', onVisibility)
  })
  onBeforeUnmount(() => {
    leave()
    window.removeEventListener('blur', leave)
    document.removeEventListener('visibilitychange', onVisibility)
  })
}

// Turns pointers, wheel, keys, input methods and the clipboard into input for the remote device. Whatever is held
// down is let go when the window loses the focus or is hidden.
export function useRemoteInput(screen: RemoteScreen) {
  const board = new FingerBoard((action, points) => {
    const { width, height } = screen.size()
    screen.stream()?.sendTouch({
      action,
      x: points.map(({ x }) => x),
      y: points.map(({ y }) => y),
      pressure: points.map(() => 0),
      referenceWidth: width,
      referenceHeight: height,
    })
  })
  const gestures = new WheelGestures(board)
  const keys = new KeyInput({
    sendKey: (action, code, shift) => screen.stream()?.sendKey(action, code, shift),
    sendText: (text) => screen.stream()?.sendText(text),
  })

  function pixelAt(event: MouseEvent): Point | null {
    const shown = screen.element()?.getBoundingClientRect()
    if (!shown?.width || !shown.height) return null
    const spot = { x: event.clientX - shown.left, y: event.clientY - shown.top, shown }
    return remotePixel(spot, screen.size(), screen.landscape())
  }

  const letGo = () => {
    gestures.stop()
    board.releaseAll()
    keys.releaseAll()
  }
  useWhenLeft(letGo)

  return {
    keys,
    onPointerdown(event: PointerEvent): void {
      const point = pixelAt(event)
      if (!point || event.button !== MAIN_BUTTON) return
      ;(event.currentTarget as Element).setPointerCapture(event.pointerId)
      board.press(event.pointerId, point)
    },
    onPointermove(event: PointerEvent): void {
      const point = pixelAt(event)
      if (point) board.move(event.pointerId, point)
    },
    // Also for a pointer that the system took away.
    onPointerup(event: PointerEvent): void {
      board.release(event.pointerId)
    },
    onWheel(event: WheelEvent): void {
      const centre = pixelAt(event)
      if (centre) gestures.turn(wheelTurn(event), centre, screen.size(), screen.landscape())
    },
    letGo,
  }
}
