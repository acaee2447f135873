import { shallowRef } from 'vue'
import type { Identity, SignInResult } from '@/api/ApiClient'
import type { SafeStorage } from '@/util/SafeStorage'

// The first two names are a contract: the client reads them from the page's local storage too.
const STORAGE_KEYS = { accessToken: 'accessToken', loginId: 'loginId', userName: 'userName' } as const
// Outlives the client's loading the page anew after a session has ended.
const ENDED_KEY = 'sessionEnded'

export type Session = SignInResult

// Who is signed in, in this page and, if the user wants it, in the page's local storage for the next start.
export class SessionStore {
  // The session that requests are made with; null before sign-in.
  readonly current = shallowRef<Session | null>(null)
  // Set when the service ended the session, so that the sign-in view can say so.
  readonly endedByService = shallowRef(false)
  private borrowed = false

  // `tabStorage` lasts as long as the window.
  constructor(
    private readonly storage: SafeStorage,
    private readonly tabStorage: SafeStorage,
  ) {
    this.endedByService.value = tabStorage.read(ENDED_KEY) !== ''
    tabStorage.remove(ENDED_KEY)
  }

  // The session of an earlier start, or null.
  remembered(): Session | null {
    const accessToken = this.storage.read(STORAGE_KEYS.accessToken)
    const loginId = this.storage.read(STORAGE_KEYS.loginId)
    if (!accessToken || !loginId) return null
    return { accessToken, loginId, userName: this.storage.read(STORAGE_KEYS.userName) }
  }

  start(session: Session, remember: boolean): void {
    this.current.value = session
    this.endedByService.value = false
    this.tabStorage.remove(ENDED_KEY)
    if (!remember) {
      this.forget()
      return
    }
    for (const key of Object.values(STORAGE_KEYS)) this.storage.write(key, session[key])
  }

  // Uses the session of another page, to which what is remembered belongs.
  borrow(session: Session): void {
    this.borrowed = true
    this.current.value = session
  }

  // Leaves the session but keeps what is remembered, as when the service cannot be reached at the start.
  suspend(): void {
    this.current.value = null
  }

  end(): void {
    this.forget()
    this.current.value = null
  }

  // For refusals by the service. One that is about an older identity changes nothing.
  endRefused(identity: Identity): void {
    const current = this.current.value
    if (current?.accessToken !== identity.accessToken || current.loginId !== identity.loginId) return
    this.endedByService.value = true
    if (!this.borrowed) this.tabStorage.write(ENDED_KEY, '1')
    this.end()
  }

  private forget(): void {
    if (this.borrowed) return
    for (const key of Object.values(STORAGE_KEYS)) this.storage.remove(key)
  }
}
