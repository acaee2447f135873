import { ApiError } from './ApiError'
import { isObject, textOf } from './json'

// A newer version of the client.
export interface ClientUpdate {
  version: string
  notes: string
  // For the client, which fetches and installs the version; passed on as it came.
  packageInfo: object
}

// Null: there is none.
export function parseUpdate(data: unknown): ClientUpdate | null {
  if (!isObject(data) || typeof data.has_update !== 'boolean')
    throw new ApiError('malformed', 'the update answer has no "has_update"')
  if (!data.has_update) return null
  const version = textOf(data.version)
  if (!version || !isObject(data.pc_update_info))
    throw new ApiError('malformed', 'the update answer has no "version" or "pc_update_info"')
  return { version, notes: textOf(data.notes), packageInfo: data.pc_update_info }
}
