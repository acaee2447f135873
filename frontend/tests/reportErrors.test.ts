import { mount } from '@vue/test-utils'
import { expect, it, vi } from 'vitest'
import { defineComponent, h } from 'vue'
import { reportErrors } from '@/app/reportErrors'
import { BrowserClientBridge } from '@/bridge/BrowserClientBridge'

function logOf(bridge: BrowserClientBridge): string {
  return (bridge.calls[bridge.calls.length - 1]?.params as { log: string } | undefined)?.log ?? ''
}

it("writes errors that nobody handled into the client's log", async () => {
  vi.spyOn(console, 'error').mockImplementation(() => undefined)
  const bridge = new BrowserClientBridge()
  const page = mount(
    defineComponent(
      () => () =>
        h('button', {
          onClick: () => {
            throw new Error('broken button')
          },
        }),
    ),
    {
      global: {
        plugins: [
          (app) => {
            reportErrors(app, bridge)
          },
        ],
      },
    },
  )
  await page.get('button').trigger('click')
  expect(bridge.calls).toHaveLength(1)
  expect(logOf(bridge)).toContain('broken button')

  window.dispatchEvent(new ErrorEvent('error', { error: new Error('broken timer') }))
  expect(logOf(bridge)).toContain('broken timer')

  window.dispatchEvent(
    Object.assign(new Event('unhandledrejection'), { reason: new Error('broken promise') }),
  )
  expect(logOf(bridge)).toContain('broken promise')
})
