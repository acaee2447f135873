import type { Services } from './services'

// The global functions that the client calls in the main window's page.
export function installPageFunctions({ devices, groups, session }: Services, page: Window = window): void {
  // The group window is open (1) or closed (0).
  page.clusterOpened = (open) => {
    groups.windowOpen.value = open === 1
    if (!open && session.current.value) void groups.refresh()
  }
  // Devices or groups were changed by the client.
  page.getList = () => {
    if (!session.current.value) return
    void devices.reload()
    void groups.refresh()
  }
}
