import { ref } from 'vue'
import { useServices } from '@/app/services'

export const SIGN_OUT_PATIENCE_MS = 2000

// Signing out: the service is told and given a moment to answer, then the session is over either way.
export function useSignOut() {
  const { api, bridge, session } = useServices()
  const busy = ref(false)

  async function tellService(): Promise<void> {
    try {
      await api.signOut()
    } catch (error) {
      bridge.call('writeLog', { log: `the service was not told of the sign-out: ${String(error)}` })
    }
  }

  async function signOut(): Promise<void> {
    if (busy.value) return
    busy.value = true
    let timer: ReturnType<typeof setTimeout> | undefined
    const patience = new Promise<void>((resolve) => {
      timer = setTimeout(resolve, SIGN_OUT_PATIENCE_MS)
    })
    await Promise.race([tellService(), patience])
    clearTimeout(timer)
    busy.value = false
    session.end()
  }

  return { busy, signOut }
}
