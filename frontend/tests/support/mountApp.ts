import { DOMWrapper, flushPromises } from '@vue/test-utils'
import { onTestFinished } from 'vitest'
import { createOrvaneApp } from '@/app/createOrvaneApp'
import { createServices } from '@/app/createServices'
import { installPageFunctions } from '@/app/pageFunctions'
import { BrowserClientBridge, type BridgeCall } from '@/bridge/BrowserClientBridge'
import { en } from '@/i18n/en'
import { namedTexts, packTexts, type PackedTexts, type TextTree } from '@/i18n/texts'
import type { StreamEnvironment } from '@/stream/StreamClient'
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
  // Further things in the local storage.
  stored?: Record<string, string>
  // The part of the address behind "#".
  hash?: string
  // For a device window: whose session it borrows.
  borrowed?: typeof SESSION
  streaming?: StreamEnvironment
}

// A language's file.
export async function textTree(code: string): Promise<TextTree> {
  const module = (await import(`../../src/i18n/locales/${code}.json`)) as { default: TextTree }
  return module.default
}

// Texts as the build makes them, without the scripts around them.
export async function loadTestTexts(code: string): Promise<PackedTexts> {
  return packTexts(namedTexts(await textTree(code)), namedTexts(en), code)
}

// Mounts the whole application over a service that is not there and the browser's bridge.
export async function mountApp(options: MountOptions = {}): Promise<AppUnderTest> {
  const service = options.service ?? new FakeService()
  const bridge = new BrowserClientBridge()
  localStorage.clear()
  sessionStorage.clear()
  window.location.hash = options.hash ?? ''
  for (const [key, value] of Object.entries({ ...options.remembered, ...options.stored }))
    localStorage.setItem(key, value)
  const services = createServices({
    apiBaseUrl: 'http://service',
    bridge,
    storage: localStorage,
    tabStorage: sessionStorage,
    fetch: service.fetch,
    loadTexts: loadTestTexts,
    streaming: options.streaming,
  })
  if (options.borrowed) services.session.borrow(options.borrowed)
  installPageFunctions(services)
  await services.settings.restore()
  const { app, router } = createOrvaneApp(services)
  const root = document.createElement('div')
  document.body.append(root)
  app.mount(root)
  onTestFinished(() => {
    app.unmount()
    services.devices.clear()
    services.expiry.stop()
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
