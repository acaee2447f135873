import { ref, shallowRef } from 'vue'
import { ApiError, isAborted } from '@/api/ApiError'
import type { ClientUpdate } from '@/api/ClientUpdate'
import { useServices, useTexts } from '@/app/services'
import { apiErrorText, wordsOf } from '@/util/errorText'

// Looking for a newer client and, if the user wants it, having the client install it.
export function useUpdateCheck() {
  const { t } = useTexts()
  const { api, bridge } = useServices()

  const checking = ref(false)
  // What came of the last check, if there was no update.
  const outcome = ref('')
  const found = shallowRef<ClientUpdate | null>(null)

  async function check(): Promise<void> {
    if (checking.value) return
    checking.value = true
    outcome.value = ''
    try {
      found.value = await api.findUpdate()
      if (!found.value) outcome.value = t('settings.upToDate')
    } catch (error) {
      if (!(error instanceof ApiError)) throw error
      if (!isAborted(error))
        outcome.value = t('settings.checkFailed', { reason: wordsOf(apiErrorText(error), t) })
    } finally {
      checking.value = false
    }
  }

  function install(): void {
    if (found.value) bridge.call('updateNewVersion', { pc_update_info: found.value.packageInfo })
    found.value = null
  }

  return { checking, outcome, found, check, install }
}
