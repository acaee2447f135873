import type { Device } from '@/api/Device'
import { useServices, useTexts } from '@/app/services'
import { groupWindow } from '@/groups/GroupStore'

// Opening devices as a group. The client has one group window at a time.
export function useGroupWindow() {
  const { t } = useTexts()
  const { bridge, groups, toasts } = useServices()

  // With the devices that are online; `label` is "" for a temporary group.
  return function open(devices: Device[], label: string): boolean {
    const usable = devices.filter(({ state }) => state === 'online')
    if (groups.windowOpen.value) toasts.show(t('groups.alreadyOpen'))
    else if (!usable.length) toasts.show(t('device.noneOnline'))
    else {
      bridge.call('openGroupControlWnd', { winData: groupWindow(usable, label) })
      return true
    }
    return false
  }
}
