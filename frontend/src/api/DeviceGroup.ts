import { ApiError } from './ApiError'
import { isObject, textOf } from './json'

// A saved group of devices.
export interface DeviceGroup {
  id: string
  name: string
  serviceIds: string[]
}

export const MAX_GROUP_NAME_LENGTH = 50

function parseGroup(entry: unknown): DeviceGroup | undefined {
  if (!isObject(entry) || !Array.isArray(entry.service_ids)) return undefined
  const id = textOf(entry.cc_group_id)
  if (!id) return undefined
  const serviceIds = (entry.service_ids as unknown[]).filter(
    (each): each is string => typeof each === 'string',
  )
  return { id, name: textOf(entry.cc_group_name), serviceIds }
}

// The groups of a list answer, in the service's order; what cannot be read is left out with a warning. Throws
// ApiError (malformed) when there is no list at all.
export function parseGroups(data: unknown): DeviceGroup[] {
  if (!isObject(data) || !Array.isArray(data.groups))
    throw new ApiError('malformed', 'the group list has no "groups" array')
  const groups = new Map<string, DeviceGroup>()
  for (const entry of data.groups as unknown[]) {
    const group = parseGroup(entry)
    if (group && !groups.has(group.id)) groups.set(group.id, group)
    else console.warn('Left out a group that cannot be read or is repeated:', entry)
  }
  return [...groups.values()]
}
