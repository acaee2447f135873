// Why a request to the service failed:
// - unreachable: no connection, or it broke
// - timeout: no answer in time
// - malformed: an answer that is not what the service promises
// - refused: the service said no; `code` and `message` are its words
// - aborted: the caller gave up; nobody needs to be told
export type ApiErrorKind = 'unreachable' | 'timeout' | 'malformed' | 'refused' | 'aborted'

export class ApiError extends Error {
  constructor(
    readonly kind: ApiErrorKind,
    message: string,
    // The envelope's code; 0 unless refused.
    readonly code = 0,
  ) {
    super(message)
    this.name = 'ApiError'
  }
}

// The answer codes that the front end tells apart.
export const API_CODE = {
  ok: 200,
  notSignedIn: 401,
  wrongPassword: 403,
  expired: 410,
  tooManyFailures: 429,
} as const

export function isAborted(error: unknown): boolean {
  return error instanceof ApiError && error.kind === 'aborted'
}
