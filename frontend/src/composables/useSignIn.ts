import { computed, onBeforeUnmount, ref, shallowRef } from 'vue'
import { useRouter } from 'vue-router'
import { ApiError, isAborted } from '@/api/ApiError'
import { ROUTE } from '@/app/router'
import { useServices } from '@/app/services'
import type { Session } from '@/session/SessionStore'
import { apiErrorText, signInErrorText, type ErrorText } from '@/util/errorText'

// The main view's first size, in logical pixels.
const MAIN_WINDOW_SIZE = { width: 1120, height: 760 }

const SESSION_ENDED: ErrorText = { key: 'errors.sessionEnded' }

export type SignInPhase = 'idle' | 'restoring' | 'busy'

// Signing in, with account and password or with the session of an earlier start, up to the main view.
export function useSignIn() {
  const { api, bridge, session } = useServices()
  const router = useRouter()
  const abort = new AbortController()
  onBeforeUnmount(() => {
    abort.abort()
  })

  const phase = ref<SignInPhase>('idle')
  const error = shallowRef<ErrorText | null>(session.endedByService.value ? SESSION_ENDED : null)
  const restoreFailed = ref(false)

  async function enter({ accessToken, loginId }: Session): Promise<void> {
    bridge.call('setLoginParams', { 'access-token': accessToken, 'login-id': loginId })
    bridge.call('setWindowSize', MAIN_WINDOW_SIZE)
    await router.replace({ name: ROUTE.devices })
  }

  async function signIn(account: string, password: string, remember: boolean): Promise<void> {
    if (phase.value !== 'idle') return
    phase.value = 'busy'
    error.value = null
    restoreFailed.value = false
    try {
      const result = await api.signIn(account, password, abort.signal)
      session.start(result, remember)
      await enter(result)
    } catch (failure) {
      if (!(failure instanceof ApiError)) throw failure
      if (!isAborted(failure)) error.value = signInErrorText(failure)
    } finally {
      phase.value = 'idle'
    }
  }

  // Tries the remembered session, if there is one, by asking the service about it. What is remembered is given up
  // only when the service refuses it.
  async function restore(): Promise<void> {
    const remembered = session.remembered()
    if (!remembered || phase.value !== 'idle') return
    phase.value = 'restoring'
    error.value = null
    restoreFailed.value = false
    session.start(remembered, true)
    try {
      await api.checkSession(abort.signal)
      await enter(remembered)
    } catch (failure) {
      if (!(failure instanceof ApiError)) throw failure
      if (isAborted(failure)) return
      if (session.endedByService.value) {
        error.value = SESSION_ENDED
        return
      }
      restoreFailed.value = true
      error.value = apiErrorText(failure)
      session.suspend()
    } finally {
      phase.value = 'idle'
    }
  }

  return { phase, error, canRetry: computed(() => restoreFailed.value), signIn, restore }
}
