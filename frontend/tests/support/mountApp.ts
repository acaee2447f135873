import { DOMWrapper, flushPromises } from '@vue/test-utils'
import { onTestFinished } from 'vitest'
import { createOrvaneApp } from '@/app/createOrvaneApp'
import { createServices } from '@/app/createServices'
import { BrowserClientBridge, type BridgeCall } from '@/bridge/BrowserClientBridge'
import { FakeService } from './FakeService'

export const SESSION = { accessToken: 'token-1', loginId: 'login-1', userName: 'Demo' }

export interface AppUnderTest {
  service: FakeService
  bridge: BrowserClientBridge
  services: ReturnType<typeof createServices>
  page: DOMWrapper<Element>
  // A control or text by its test name.
  part: (name: string) => DOMWrapper<Element>
  calls: (name: string) => BridgeCall[]
  signIn: () => Promise<void>
}

export interface MountOptions {
  service?: FakeService
  remembered?: typeof SESSION
}

// Mounts the whole application over a service that is not there and the browser's bridge.
export async function mountApp(options: MountOptions = {}): Promise<AppUnderTest> {
  const service = options.service ?? new FakeService()
  const bridge = new BrowserClientBridge()
  localStorage.clear()
  window.location.hash = ''
  for (const [key, value] of Object.entries(options.remembered ?? {})) localStorage.setItem(key, value)
  const services = createServices({
    apiBaseUrl: 'http://service',
    bridge,
    storage: localStorage,
    language: () => 'en',
    fetch: service.fetch,
  })
  const { app, router } = createOrvaneApp(services)
  const root = document.createElement('div')
  document.body.append(root)
  app.mount(root)
  onTestFinished(() => {
    app.unmount()
    services.devices.clear()
  })
  await router.isReady()
  await flushPromises()

  const page = new DOMWrapper<Element>(root)
  return {
    service,
    bridge,
    services,
    page,
    part: (name) => page.find(`[data-test="${name}"]`),
    calls: (name) => bridge.calls.filter((call) => call.name === name),
    signIn: async () => {
      await page.get('#account').setValue('demo')
      await page.get('#password').setValue('orvane-demo')
      await page.get('form').trigger('submit')
      await flushPromises()
    },
  }
}
