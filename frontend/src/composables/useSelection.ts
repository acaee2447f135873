import { computed, ref, type Ref } from 'vue'
import type { Device } from '@/api/Device'

// Which of the devices are selected. Devices that are no longer there do not count.
export function useSelection(all: () => readonly Device[], shown: Readonly<Ref<readonly Device[]>>) {
  const ids = ref(new Set<string>())
  // Where a range begins.
  let anchor = ''

  const selected = computed(() => all().filter(({ serviceId }) => ids.value.has(serviceId)))
  const allShown = computed(
    () => shown.value.length > 0 && shown.value.every(({ serviceId }) => ids.value.has(serviceId)),
  )

  function toggle(serviceId: string): void {
    if (!ids.value.delete(serviceId)) ids.value.add(serviceId)
    anchor = serviceId
  }

  // Selects everything shown between the last toggled device and this one.
  function extendTo(serviceId: string): void {
    const index = shown.value.findIndex((device) => device.serviceId === serviceId)
    const from = shown.value.findIndex((device) => device.serviceId === anchor)
    if (from === -1) {
      toggle(serviceId)
      return
    }
    for (const device of shown.value.slice(Math.min(from, index), Math.max(from, index) + 1))
      ids.value.add(device.serviceId)
  }

  function selectShown(): void {
    for (const { serviceId } of shown.value) ids.value.add(serviceId)
  }

  function clear(): void {
    ids.value.clear()
    anchor = ''
  }

  return {
    selected,
    allShown,
    isSelected: (serviceId: string) => ids.value.has(serviceId),
    toggle,
    extendTo,
    selectShown,
    clear,
  }
}
