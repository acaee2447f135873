import { inject, type App, type InjectionKey } from 'vue'
import type { ApiClient } from '@/api/ApiClient'
import type { ClientBridge } from '@/bridge/ClientBridge'
import type { DeviceStore } from '@/devices/DeviceStore'
import type { SessionStore } from '@/session/SessionStore'
import type { ToastStore } from './ToastStore'

// What the views work with. One of each per page; main.ts makes them, tests make their own.
export interface Services {
  api: ApiClient
  bridge: ClientBridge
  session: SessionStore
  devices: DeviceStore
  toasts: ToastStore
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
