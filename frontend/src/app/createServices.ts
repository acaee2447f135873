import { ApiClient } from '@/api/ApiClient'
import type { ClientBridge } from '@/bridge/ClientBridge'
import { DeviceStore } from '@/devices/DeviceStore'
import { SessionStore } from '@/session/SessionStore'
import type { Services } from './services'
import { ToastStore } from './ToastStore'

export interface ServiceOptions {
  apiBaseUrl: string
  bridge: ClientBridge
  storage: Storage
  language: () => string
  fetch?: typeof fetch
}

// Makes the services and ties them together: requests carry the session, and a refusal ends it.
export function createServices(options: ServiceOptions): Services {
  const session = new SessionStore(options.storage)
  const api = new ApiClient({
    baseUrl: options.apiBaseUrl,
    identity: () => session.current.value,
    language: options.language,
    onNotSignedIn: (identity) => {
      session.endRefused(identity)
    },
    fetch: options.fetch,
  })
  return { api, session, bridge: options.bridge, devices: new DeviceStore(api), toasts: new ToastStore() }
}
