import { effectScope, shallowReactive, watch, type EffectScope } from 'vue'
import type { ApiClient } from '@/api/ApiClient'
import { ApiError } from '@/api/ApiError'
import type { ClientBridge } from '@/bridge/ClientBridge'
import type { DeviceStore } from '@/devices/DeviceStore'
import { ExpiryWatcher } from './ExpiryWatcher'

export interface ExpiryNotice {
  serviceId: string
  name: string
  // Less than so many minutes are left; 0: the time is over.
  minutes: number
}

// Warns about devices whose time nears its end, in the page and, through the client, in the group window. At most
// one notice per device, the newest.
export class ExpiryNotices {
  readonly notices = shallowReactive<ExpiryNotice[]>([])
  private readonly watcher: ExpiryWatcher
  private scope: EffectScope | null = null
  private thresholdsKnown = false
  private asking = false

  constructor(
    private readonly api: ApiClient,
    bridge: ClientBridge,
    private readonly devices: DeviceStore,
  ) {
    this.watcher = new ExpiryWatcher({
      onNotice: ({ serviceId, deviceId, name }, minutes) => {
        const params = { service_id: serviceId, device_id: deviceId, expire_notice: minutes }
        bridge.call('showRenewWnd', { params })
        this.show({ serviceId, name, minutes })
      },
      onExpired: ({ serviceId, deviceId, name }) => {
        bridge.call('deviceExpiration', { params: { service_id: serviceId, device_id: deviceId } })
        this.show({ serviceId, name, minutes: 0 })
      },
    })
  }

  // Follows the device list from now on.
  start(): void {
    if (this.scope) return
    this.scope = effectScope(true)
    this.scope.run(() => {
      watch(
        this.devices.revision,
        () => {
          this.onList()
        },
        { immediate: true, flush: 'sync' },
      )
    })
  }

  stop(): void {
    this.scope?.stop()
    this.scope = null
    this.watcher.clear()
    this.notices.splice(0)
    this.thresholdsKnown = false
  }

  dismiss(serviceId: string): void {
    const index = this.notices.findIndex((notice) => notice.serviceId === serviceId)
    if (index !== -1) this.notices.splice(index, 1)
  }

  private onList(): void {
    if (!this.devices.loaded.value) return
    const { devices } = this.devices
    // A notice about a device that has more time again, or is no longer there, is no longer true.
    for (const notice of [...this.notices]) {
      const device = devices.find(({ serviceId }) => serviceId === notice.serviceId)
      if (!device || device.remainingSeconds > notice.minutes * 60 + 60) this.dismiss(notice.serviceId)
    }
    this.watcher.update(devices)
    if (!this.thresholdsKnown) void this.askThresholds()
  }

  // Asked again with the next list if there is no answer.
  private async askThresholds(): Promise<void> {
    if (this.asking) return
    this.asking = true
    try {
      const minutes = await this.api.expireNoticeMinutes()
      if (!this.scope) return
      this.thresholdsKnown = true
      this.watcher.setThresholds(minutes)
    } catch (error) {
      if (!(error instanceof ApiError)) throw error
      console.warn('When to warn before a device expires is not known:', error.message)
    } finally {
      this.asking = false
    }
  }

  private show(notice: ExpiryNotice): void {
    this.dismiss(notice.serviceId)
    this.notices.push(notice)
  }
}
