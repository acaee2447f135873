import { reactive, shallowRef } from 'vue'
import type { ApiClient } from '@/api/ApiClient'
import { ApiError, isAborted } from '@/api/ApiError'
import type { Device } from '@/api/Device'

export const REFRESH_INTERVAL_MS = 10_000

// The user's devices, kept up to date while somebody watches. A refresh changes the records in place, so that what
// shows them is changed and not built anew; a failed one leaves them as they are.
export class DeviceStore {
  readonly devices = reactive<Device[]>([])
  // Whether a list has arrived since the last clear().
  readonly loaded = shallowRef(false)
  // Counts the lists that have arrived.
  readonly revision = shallowRef(0)
  // Why the last refresh failed; null after one that worked.
  readonly error = shallowRef<ApiError | null>(null)

  private refreshing: Promise<void> | null = null
  private abort = new AbortController()
  private timer: ReturnType<typeof setTimeout> | undefined
  private watching = false

  constructor(private readonly api: ApiClient) {}

  // Asks for the list now, or joins the request under way. Failures end in `error`.
  refresh(): Promise<void> {
    if (this.refreshing) return this.refreshing
    clearTimeout(this.timer)
    const request = this.load().finally(() => {
      if (this.refreshing !== request) return
      this.refreshing = null
      this.schedule()
    })
    this.refreshing = request
    return request
  }

  // Refreshes now, then REFRESH_INTERVAL_MS after each answer, and when the page comes to the front.
  watch(): void {
    if (this.watching) return
    this.watching = true
    window.addEventListener('focus', this.onPageInFront)
    document.addEventListener('visibilitychange', this.onPageInFront)
    void this.refresh()
  }

  unwatch(): void {
    this.watching = false
    clearTimeout(this.timer)
    window.removeEventListener('focus', this.onPageInFront)
    document.removeEventListener('visibilitychange', this.onPageInFront)
  }

  // Forgets everything, for the next user; what is under way is given up.
  clear(): void {
    this.unwatch()
    this.giveUpRequest()
    this.devices.splice(0)
    this.loaded.value = false
    this.error.value = null
  }

  // Asks anew, even if a request is under way: what it brings may be out of date.
  async reload(): Promise<void> {
    this.giveUpRequest()
    await this.refresh()
  }

  // Restarts devices and shows that at once. Rejects with an ApiError.
  async restart(serviceIds: string[]): Promise<void> {
    const [only, ...others] = serviceIds
    if (only === undefined) return
    await (others.length ? this.api.restartDevices(serviceIds) : this.api.restartDevice(only))
    if (!this.loaded.value) return // signed out meanwhile
    for (const device of this.devices) if (serviceIds.includes(device.serviceId)) device.state = 'restarting'
    // A list that was asked for before the restart would show the devices as they were.
    await this.reload()
  }

  private giveUpRequest(): void {
    this.abort.abort()
    this.abort = new AbortController()
    this.refreshing = null
  }

  private async load(): Promise<void> {
    const { signal } = this.abort
    try {
      const devices = await this.api.listDevices(signal)
      if (signal.aborted) return
      this.merge(devices)
      this.loaded.value = true
      this.error.value = null
      ++this.revision.value
    } catch (error) {
      if (isAborted(error) || signal.aborted) return
      if (!(error instanceof ApiError)) throw error
      if (!this.error.value) console.warn('The device list could not be refreshed:', error.message)
      this.error.value = error
    }
  }

  private merge(devices: Device[]): void {
    const known = new Map(this.devices.map((device) => [device.serviceId, device]))
    const merged = devices.map((device) => {
      const record = known.get(device.serviceId)
      return record ? Object.assign(record, device) : device
    })
    this.devices.splice(0, this.devices.length, ...merged)
  }

  private schedule(): void {
    clearTimeout(this.timer)
    if (!this.watching) return
    this.timer = setTimeout(() => void this.refresh(), REFRESH_INTERVAL_MS)
  }

  private readonly onPageInFront = (): void => {
    if (!document.hidden) void this.refresh()
  }
}
