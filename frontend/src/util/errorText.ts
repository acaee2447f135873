import { API_CODE, ApiError } from '@/api/ApiError'

// A message key, or the service's own words.
export interface ErrorText {
  key?: string
  text?: string
}

// The words for it, in the language of `translate`.
export function wordsOf({ key, text }: ErrorText, translate: (key: string) => string): string {
  return key ? translate(key) : (text ?? '')
}

// What to tell the user about a failed request.
export function apiErrorText(error: ApiError): ErrorText {
  if (error.kind !== 'refused') return { key: `errors.${error.kind}` }
  if (error.code === API_CODE.notSignedIn) return { key: 'errors.sessionEnded' }
  return error.message ? { text: error.message } : { key: 'errors.malformed' }
}

// The same for an attempt to sign in, where some refusals have a meaning of their own.
export function signInErrorText(error: ApiError): ErrorText {
  if (error.kind === 'refused' && error.code === API_CODE.wrongPassword)
    return { key: 'errors.wrongPassword' }
  if (error.kind === 'refused' && error.code === API_CODE.tooManyFailures)
    return { key: 'errors.tooManyFailures' }
  return apiErrorText(error)
}
