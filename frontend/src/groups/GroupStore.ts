import { shallowReactive, shallowRef } from 'vue'
import type { ApiClient } from '@/api/ApiClient'
import { ApiError, isAborted } from '@/api/ApiError'
import type { Device } from '@/api/Device'
import type { DeviceGroup } from '@/api/DeviceGroup'
import type { GroupWindow } from '@/bridge/ClientBridge'

// The user's saved groups, and whether the client's one group window is open.
export class GroupStore {
  readonly groups = shallowReactive<DeviceGroup[]>([])
  // Whether a list has arrived since the last clear().
  readonly loaded = shallowRef(false)
  // Why the last refresh failed; null after one that worked.
  readonly error = shallowRef<ApiError | null>(null)
  readonly windowOpen = shallowRef(false)

  private abort = new AbortController()

  constructor(private readonly api: ApiClient) {}

  // Asks for the list; a later question takes the place of one under way. Failures end in `error`.
  async refresh(): Promise<void> {
    this.abort.abort()
    this.abort = new AbortController()
    const { signal } = this.abort
    try {
      const groups = await this.api.listGroups(signal)
      if (signal.aborted) return
      this.groups.splice(0, this.groups.length, ...groups)
      this.loaded.value = true
      this.error.value = null
    } catch (error) {
      if (isAborted(error) || signal.aborted) return
      if (!(error instanceof ApiError)) throw error
      if (!this.error.value) console.warn('The group list could not be refreshed:', error.message)
      this.error.value = error
    }
  }

  // Both reject with an ApiError.
  async rename(group: DeviceGroup, name: string): Promise<void> {
    await this.api.renameGroup(group.id, name)
    const index = this.groups.findIndex(({ id }) => id === group.id)
    if (index !== -1) this.groups.splice(index, 1, { ...group, name })
    await this.refresh()
  }

  async remove(group: DeviceGroup): Promise<void> {
    await this.api.deleteGroup(group.id)
    const index = this.groups.findIndex(({ id }) => id === group.id)
    if (index !== -1) this.groups.splice(index, 1)
    await this.refresh()
  }

  clear(): void {
    this.abort.abort()
    this.groups.splice(0)
    this.loaded.value = false
    this.error.value = null
    this.windowOpen.value = false
  }
}

// What the client needs to open a group window. A temporary group has no name.
export function groupWindow(devices: Device[], label: string): GroupWindow {
  return {
    label,
    children: devices.map((device) => ({
      service_id: device.serviceId,
      alias_name: device.name,
      pay_mode: device.payMode,
      expire_time: device.expireTime,
      network_time: device.networkTime,
    })),
  }
}

// 1 to 50 characters, as people count them, without the blanks around; null if the text is no such name.
export function groupNameOf(text: string, maxLength: number): string | null {
  const name = text.trim()
  const length = [...name].length
  return length >= 1 && length <= maxLength ? name : null
}
