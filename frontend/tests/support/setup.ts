import { enableAutoUnmount } from '@vue/test-utils'
import { afterEach, beforeEach, vi } from 'vitest'

enableAutoUnmount(afterEach)

beforeEach(() => {
  document.body.innerHTML = ''
  vi.spyOn(console, 'debug').mockImplementation(() => undefined)
  // jsdom has no layout.
  Element.prototype.scrollIntoView = vi.fn()
})

afterEach(() => {
  vi.useRealTimers()
})
