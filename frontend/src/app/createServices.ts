import { ApiClient } from '@/api/ApiClient'
import type { ClientBridge } from '@/bridge/ClientBridge'
import { DeviceStore } from '@/devices/DeviceStore'
import { ExpiryNotices } from '@/expiry/ExpiryNotices'
import { GroupStore } from '@/groups/GroupStore'
import { Texts } from '@/i18n'
import type { TextLoader } from '@/i18n/loadTexts'
import { SessionStore } from '@/session/SessionStore'
import { SettingsStore } from '@/settings/SettingsStore'
import { BROWSER_ENVIRONMENT, type StreamEnvironment } from '@/stream/StreamClient'
import { SafeStorage } from '@/util/SafeStorage'
import type { Services } from './services'
import { ToastStore } from './ToastStore'

export interface ServiceOptions {
  apiBaseUrl: string
  bridge: ClientBridge
  storage: Storage
  tabStorage: Storage
  fetch?: typeof fetch
  loadTexts?: TextLoader
  streaming?: StreamEnvironment
}

// Makes the services and ties them together: requests carry session and language, and a refusal ends the session.
export function createServices(options: ServiceOptions): Services {
  const { bridge } = options
  const storage = new SafeStorage(options.storage)
  const session = new SessionStore(storage, new SafeStorage(options.tabStorage))
  const texts = new Texts(options.loadTexts)
  const settings = new SettingsStore(storage, bridge, texts)
  const api = new ApiClient({
    baseUrl: options.apiBaseUrl,
    identity: () => session.current.value,
    language: () => settings.language.value,
    onNotSignedIn: (identity) => {
      session.endRefused(identity)
    },
    fetch: options.fetch,
  })
  const devices = new DeviceStore(api)
  return {
    api,
    session,
    settings,
    texts,
    bridge,
    devices,
    groups: new GroupStore(api),
    expiry: new ExpiryNotices(api, bridge, devices),
    toasts: new ToastStore(),
    streaming: options.streaming ?? BROWSER_ENVIRONMENT,
  }
}
