import { inject, type App, type InjectionKey } from 'vue'
import type { ApiClient } from '@/api/ApiClient'
import type { ClientBridge } from '@/bridge/ClientBridge'
import type { DeviceStore } from '@/devices/DeviceStore'
import type { ExpiryNotices } from '@/expiry/ExpiryNotices'
import type { GroupStore } from '@/groups/GroupStore'
import type { Texts } from '@/i18n'
import type { SessionStore } from '@/session/SessionStore'
import type { SettingsStore } from '@/settings/SettingsStore'
import type { StreamEnvironment } from '@/stream/StreamClient'
import type { ToastStore } from './ToastStore'

// What the views work with. One of each per page; main.ts makes them, tests make their own.
export interface Services {
  api: ApiClient
  bridge: ClientBridge
  session: SessionStore
  settings: SettingsStore
  texts: Texts
  devices: DeviceStore
  groups: GroupStore
  expiry: ExpiryNotices
  toasts: ToastStore
  streaming: StreamEnvironment
}

const SERVICES: InjectionKey<Services> = Symbol('services')

export function provideServices(app: App, services: Services): void {
  app.provide(SERVICES, services)
}

export function useServices(): Services {
  const services = inject(SERVICES)
  if (!services) throw new Error('the application provides no services')
  return services
}

// For components: `t` gives the words of the language that the page is in.
export function useTexts(): Texts {
  return useServices().texts
}
