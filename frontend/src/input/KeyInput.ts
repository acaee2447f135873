import { linuxKeyCode, sameOnDevice } from './keyCodes'

export const KEY_ACTION = { down: 1, up: 2, click: 3 } as const

export interface KeySink {
  sendKey: (action: number, code: number, shift?: boolean) => void
  sendText: (text: string) => void
}

// The keyboard of the remote device. Keys go by their place on the keyboard; a character that the device's own
// keyboard would not make of them goes as text, and so does what an input method or the clipboard brings.
export class KeyInput {
  private readonly held = new Map<string, number>()

  constructor(private readonly sink: KeySink) {}

  // Returns whether the key is dealt with, and the browser's own answer to it unwanted.
  keyDown(event: KeyboardEvent): boolean {
    if (event.isComposing || event.key === 'Process' || event.key === 'Dead') return false
    if (isPaste(event)) return false
    const { same, shift } = sameOnDevice(event.code, event.key)
    const combined = (event.ctrlKey || event.altKey) && !event.getModifierState('AltGraph')
    if (!same && !combined && !event.metaKey) {
      this.sink.sendText(event.key)
      return true
    }
    const code = linuxKeyCode(event.code)
    if (code === undefined) return false
    this.held.set(event.code, code)
    this.sink.sendKey(KEY_ACTION.down, code, shift)
    return true
  }

  keyUp(event: KeyboardEvent): void {
    const code = this.held.get(event.code)
    if (code === undefined) return
    this.held.delete(event.code)
    this.sink.sendKey(KEY_ACTION.up, code)
  }

  // Lets go of every key, as when the window loses the focus.
  releaseAll(): void {
    for (const code of this.held.values()) this.sink.sendKey(KEY_ACTION.up, code)
    this.held.clear()
  }

  text(text: string): void {
    if (text) this.sink.sendText(text)
  }
}

function isPaste({ ctrlKey, shiftKey, code }: KeyboardEvent): boolean {
  return (ctrlKey && code === 'KeyV') || (shiftKey && code === 'Insert')
}
