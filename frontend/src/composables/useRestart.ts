import { shallowRef } from 'vue'
import { ApiError, isAborted } from '@/api/ApiError'
import type { Device } from '@/api/Device'
import { useServices, useTexts } from '@/app/services'
import { apiErrorText, wordsOf } from '@/util/errorText'

// Restarting one device or several, after a question.
export function useRestart() {
  const { t } = useTexts()
  const { devices: store, toasts } = useServices()

  // The devices that the user is being asked about.
  const asked = shallowRef<Device[]>([])

  function title(): string {
    const [first] = asked.value
    if (asked.value.length === 1 && first) return t('restartDialog.title', { name: first.name })
    return t('restartDialog.titleMany', asked.value.length)
  }

  async function restart(): Promise<void> {
    const devices = asked.value
    const [first] = devices
    asked.value = []
    if (!first) return
    const one = devices.length === 1
    try {
      await store.restart(devices.map(({ serviceId }) => serviceId))
      toasts.show(
        one ? t('device.restarted', { name: first.name }) : t('device.manyRestarted', devices.length),
      )
    } catch (error) {
      if (!(error instanceof ApiError)) throw error
      if (isAborted(error)) return
      const reason = wordsOf(apiErrorText(error), t)
      toasts.show(
        one ? t('device.restartFailed', { name: first.name, reason }) : t('device.manyFailed', { reason }),
      )
    }
  }

  return { asked, title, restart }
}
