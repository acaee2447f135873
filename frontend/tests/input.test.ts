import { beforeEach, describe, expect, it, vi } from 'vitest'
import { windowSizeFor } from '@/deviceWindow/windowSize'
import { FingerBoard } from '@/input/FingerBoard'
import { fittingSize, remotePixel, type Point } from '@/input/geometry'
import { linuxKeyCode, sameOnDevice } from '@/input/keyCodes'
import { KeyInput } from '@/input/KeyInput'
import { GESTURE_INTERVAL_MS, WheelGestures, type WheelTurn } from '@/input/WheelGesture'

const REMOTE = { width: 720, height: 1280 }

// Animation frames come when the test says so.
let frames: FrameRequestCallback[] = []
function nextFrame(): void {
  for (const frame of frames.splice(0)) frame(0)
}

beforeEach(() => {
  frames = []
  vi.stubGlobal('requestAnimationFrame', (callback: FrameRequestCallback) => frames.push(callback))
  vi.stubGlobal('cancelAnimationFrame', () => frames.splice(0))
})

function board() {
  const sent: [number, ...number[][]][] = []
  const fingers = new FingerBoard((action, points) => {
    sent.push([action, ...points.map(({ x, y }) => [x, y])])
  })
  return { sent, fingers }
}

const at = (x: number, y: number): Point => ({ x, y })

describe('places on the picture', () => {
  it.each([
    [0, 0, 0, 0],
    [180, 320, 360, 640],
    [359, 639, 718, 1278],
    [360, 640, 719, 1279],
    [-5, 900, 0, 1279],
  ])('portrait: (%i, %i) is the pixel (%i, %i)', (x, y, remoteX, remoteY) => {
    const shown = { width: 360, height: 640 }
    expect(remotePixel({ x, y, shown }, REMOTE, false)).toEqual(at(remoteX, remoteY))
  })

  it.each([
    [0, 0, 719, 0],
    [640, 0, 719, 1279],
    [0, 360, 0, 0],
    [320, 90, 540, 640],
  ])('landscape: (%i, %i) is the pixel (%i, %i)', (x, y, remoteX, remoteY) => {
    const shown = { width: 640, height: 360 }
    expect(remotePixel({ x, y, shown }, REMOTE, true)).toEqual(at(remoteX, remoteY))
  })

  it('are on a picture that keeps its shape', () => {
    expect(fittingSize({ width: 1000, height: 640 }, REMOTE, false)).toEqual({ width: 360, height: 640 })
    expect(fittingSize({ width: 640, height: 900 }, REMOTE, true)).toEqual({ width: 640, height: 360 })
    // The device window's own area, which has the screen's shape but for a fraction of a pixel.
    expect(fittingSize({ width: 346, height: 615 }, REMOTE, false)).toEqual({ width: 346, height: 615 })
    expect(windowSizeFor(REMOTE, false)).toEqual({ width: 390, height: 655 })
    expect(windowSizeFor(REMOTE, true)).toEqual({ width: 844, height: 490 })
  })
})

describe('fingers', () => {
  it('are told all at each change; the last one up leaves none', () => {
    const { sent, fingers } = board()
    fingers.press(1, at(1, 2))
    fingers.press(2, at(3, 4))
    fingers.release(1)
    fingers.release(2)
    expect(sent).toEqual([
      [0, [1, 2]],
      [0, [1, 2], [3, 4]],
      [1, [3, 4]],
      [1, [-1, -1]],
    ])
  })

  it('move at most once per animation frame', () => {
    const { sent, fingers } = board()
    fingers.press(1, at(0, 0))
    for (let x = 1; x < 9; ++x) fingers.move(1, at(x, 0))
    expect(sent).toHaveLength(1)
    nextFrame()
    expect(sent.slice(1)).toEqual([[2, [8, 0]]])
    nextFrame()
    expect(sent).toHaveLength(2)
  })

  it('are where they were let go before they are up', () => {
    const { sent, fingers } = board()
    fingers.press(1, at(0, 0))
    fingers.move(1, at(7, 7))
    fingers.release(1)
    nextFrame()
    expect(sent).toEqual([
      [0, [0, 0]],
      [2, [7, 7]],
      [1, [-1, -1]],
    ])
  })

  it('that are not down neither move nor go up, and there are no more than the device knows', () => {
    const { sent, fingers } = board()
    fingers.move(1, at(1, 1))
    fingers.release(1)
    nextFrame()
    expect(sent).toEqual([])
    for (let id = 0; id < 12; ++id) fingers.press(id, at(id, 0))
    expect(sent).toHaveLength(8)
  })

  it('can all be lifted', () => {
    const { sent, fingers } = board()
    fingers.press(1, at(1, 1))
    fingers.press(2, at(2, 2))
    fingers.releaseAll()
    expect(sent.slice(2)).toEqual([
      [1, [2, 2]],
      [1, [-1, -1]],
    ])
  })
})

describe('the wheel', () => {
  const UP: WheelTurn = { angle: at(0, 120), pixels: null, pinch: false }
  const DOWN: WheelTurn = { angle: at(0, -120), pixels: null, pinch: false }

  function turned(turn: WheelTurn, centre: Point, landscape = false) {
    vi.useFakeTimers()
    const { sent, fingers } = board()
    const gestures = new WheelGestures(fingers)
    gestures.turn(turn, centre, REMOTE, landscape)
    return { sent, gestures, fingers }
  }

  it('scrolls with one finger over a fifth of the screen per notch, in steps', () => {
    const { sent } = turned(DOWN, at(360, 640))
    vi.advanceTimersByTime(GESTURE_INTERVAL_MS * 30)
    // A step is 32 pixels, a notch 128: from 128 below the centre to 128 above it.
    expect(sent[0]).toEqual([0, [360, 768]])
    expect(sent[1]).toEqual([2, [360, 736]])
    expect(sent.slice(-2)).toEqual([
      [2, [360, 512]],
      [1, [360, 512]],
    ])
    expect(sent).toHaveLength(1 + 8 + 1)
  })

  it('follows the picture when that is turned', () => {
    const { sent } = turned(UP, at(360, 640), true)
    expect(sent[0]).toEqual([0, [488, 640]])
    vi.advanceTimersByTime(GESTURE_INTERVAL_MS * 30)
    expect(sent.slice(-1)).toEqual([[1, [232, 640]]])
  })

  it('pinches with two fingers about the centre, apart or together', () => {
    const { sent } = turned({ ...UP, pinch: true }, at(360, 640))
    vi.advanceTimersByTime(GESTURE_INTERVAL_MS * 30)
    expect(sent[0]).toEqual([0, [360, 576], [360, 704]])
    expect(sent.slice(-1)).toEqual([[1, [360, 512], [360, 768]]])
    const together = turned({ ...DOWN, pinch: true }, at(360, 640))
    expect(together.sent[0]).toEqual([0, [360, 768], [360, 512]])
  })

  it('takes pixels where they are told', () => {
    const { sent } = turned({ angle: at(0, -30), pixels: at(0, -20), pinch: false }, at(100, 100))
    vi.advanceTimersByTime(GESTURE_INTERVAL_MS * 10)
    expect(sent).toEqual([
      [0, [100, 120]],
      [2, [100, 88]],
      [2, [100, 80]],
      [1, [100, 80]],
    ])
  })

  it('does not begin again before it is done', () => {
    const { sent, gestures } = turned(DOWN, at(360, 640))
    gestures.turn(UP, at(1, 1), REMOTE, false)
    expect(sent).toHaveLength(1)
  })

  it('goes along with a finger that is held', () => {
    const { sent, fingers } = turned(DOWN, at(360, 640))
    fingers.press(1, at(5, 5))
    expect(sent[1]).toEqual([0, [360, 768], [5, 5]])
  })

  it('is lifted when the window is left', () => {
    const { sent, gestures } = turned(DOWN, at(360, 640))
    gestures.stop()
    vi.advanceTimersByTime(1000)
    expect(sent.slice(1)).toEqual([[1, [360, 768]]])
  })
})

describe('keys', () => {
  it.each([
    ['KeyQ', 16],
    ['KeyP', 25],
    ['KeyA', 30],
    ['KeyL', 38],
    ['KeyZ', 44],
    ['KeyM', 50],
    ['Digit0', 11],
    ['Enter', 28],
    ['ArrowUp', 103],
    ['F12', 88],
    ['IntlYen', undefined],
  ])('%s is %s', (code, linux) => {
    expect(linuxKeyCode(code)).toBe(linux)
  })

  it.each([
    ['KeyA', 'a', { same: true, shift: false }],
    ['KeyA', 'A', { same: true, shift: true }],
    ['Digit1', '!', { same: true, shift: true }],
    ['KeyA', 'q', { same: false, shift: false }],
    ['Semicolon', 'ö', { same: false, shift: false }],
    ['Enter', 'Enter', { same: true, shift: false }],
    ['Space', ' ', { same: true, shift: false }],
    ['Numpad5', '5', { same: true, shift: false }],
  ])('%s that writes "%s"', (code, key, expected) => {
    expect(sameOnDevice(code, key)).toEqual(expected)
  })

  function keyboard() {
    const sent: unknown[] = []
    const keys = new KeyInput({
      sendKey: (...key) => sent.push(key),
      sendText: (text) => sent.push(text),
    })
    const down = (code: string, key: string, more: KeyboardEventInit = {}) =>
      keys.keyDown(new KeyboardEvent('keydown', { code, key, ...more }))
    const up = (code: string) => {
      keys.keyUp(new KeyboardEvent('keyup', { code }))
    }
    return { sent, keys, down, up }
  }

  it('go down and up', () => {
    const { sent, down, up } = keyboard()
    expect(down('KeyA', 'A')).toBe(true)
    up('KeyA')
    up('KeyA')
    expect(sent).toEqual([
      [1, 30, true],
      [2, 30],
    ])
  })

  it('that the device would write differently go as text', () => {
    const { sent, down, up } = keyboard()
    expect(down('Semicolon', 'ö')).toBe(true)
    up('Semicolon')
    expect(sent).toEqual(['ö'])
  })

  it('of a combination go by their place', () => {
    const { sent, down } = keyboard()
    down('KeyA', 'q', { ctrlKey: true })
    expect(sent).toEqual([[1, 30, false]])
  })

  it('that the input method, the clipboard or nobody wants are left to the browser', () => {
    const { sent, down } = keyboard()
    expect(down('KeyA', 'Process')).toBe(false)
    expect(down('KeyA', 'a', { isComposing: true })).toBe(false)
    expect(down('KeyV', 'v', { ctrlKey: true })).toBe(false)
    expect(down('Insert', 'Insert', { shiftKey: true })).toBe(false)
    expect(down('BrowserSearch', 'BrowserSearch')).toBe(false)
    expect(sent).toEqual([])
  })

  it('that are held are let go together', () => {
    const { sent, keys, down } = keyboard()
    down('ShiftLeft', 'Shift')
    down('KeyW', 'W')
    keys.releaseAll()
    keys.releaseAll()
    expect(sent.slice(2)).toEqual([
      [2, 42],
      [2, 17],
    ])
  })
})
