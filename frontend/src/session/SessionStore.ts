import { shallowRef } from 'vue'
import type { Identity, SignInResult } from '@/api/ApiClient'

// The first two names are a contract: the client reads them from the page's local storage too.
const STORAGE_KEYS = { accessToken: 'accessToken', loginId: 'loginId', userName: 'userName' } as const

export type Session = SignInResult

// Who is signed in, in this page and, if the user wants it, in the page's local storage for the next start. A
// storage that refuses to work costs no more than that memory.
export class SessionStore {
  // The session that requests are made with; null before sign-in.
  readonly current = shallowRef<Session | null>(null)
  // Set when the service ended the session, so that the sign-in view can say so.
  readonly endedByService = shallowRef(false)

  constructor(private readonly storage: Storage) {}

  // The session of an earlier start, or null.
  remembered(): Session | null {
    const accessToken = this.read(STORAGE_KEYS.accessToken)
    const loginId = this.read(STORAGE_KEYS.loginId)
    if (!accessToken || !loginId) return null
    return { accessToken, loginId, userName: this.read(STORAGE_KEYS.userName) }
  }

  start(session: Session, remember: boolean): void {
    this.current.value = session
    this.endedByService.value = false
    if (!remember) {
      this.forget()
      return
    }
    for (const key of Object.values(STORAGE_KEYS))
      this.access(() => {
        this.storage.setItem(key, session[key])
      })
  }

  // Leaves the session but keeps what is remembered, as when the service cannot be reached at the start.
  suspend(): void {
    this.current.value = null
  }

  end(): void {
    this.current.value = null
    this.forget()
  }

  // For refusals by the service. One that is about an older identity changes nothing.
  endRefused(identity: Identity): void {
    const current = this.current.value
    if (current?.accessToken !== identity.accessToken || current.loginId !== identity.loginId) return
    this.end()
    this.endedByService.value = true
  }

  private forget(): void {
    for (const key of Object.values(STORAGE_KEYS))
      this.access(() => {
        this.storage.removeItem(key)
      })
  }

  private read(key: string): string {
    return this.access(() => this.storage.getItem(key)) ?? ''
  }

  private access<Result>(use: () => Result): Result | undefined {
    try {
      return use()
    } catch (error) {
      console.error('The local storage is not usable:', error)
      return undefined
    }
  }
}
