import { shallowRef } from 'vue'

export const TOAST_MS = 4000

export interface Toast {
  id: number
  text: string
}

// The one short message at the foot of the window. A new one takes the place of the one before.
export class ToastStore {
  readonly current = shallowRef<Toast | null>(null)
  private timer: ReturnType<typeof setTimeout> | undefined
  private lastId = 0

  show(text: string): void {
    clearTimeout(this.timer)
    this.current.value = { id: ++this.lastId, text }
    this.timer = setTimeout(() => {
      this.current.value = null
    }, TOAST_MS)
  }
}
