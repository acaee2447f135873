import { ApiError } from './ApiError'
import { isObject, textOf as text } from './json'

const DEVICE_STATES = ['online', 'restarting', 'expired'] as const

export type DeviceState = (typeof DEVICE_STATES)[number]

export interface Device {
  serviceId: string
  // The name that people gave it, or else the service's.
  name: string
  deviceId: string
  // "vm" and other kinds of machine.
  nodeType: string
  uuid: string
  payMode: string
  // Local times "yyyy-MM-dd hh:mm:ss": when the user's time ends, and the service's present time.
  expireTime: string
  networkTime: string
  state: DeviceState
  // Whole or broken seconds; 0 or less when the time is over.
  remainingSeconds: number
  // Path of a picture of the screen below the API root; "" if there is none. A new picture has a new path.
  picture: string
}

function parseDevice(entry: unknown): Device | undefined {
  if (!isObject(entry)) return undefined
  const serviceId = text(entry.service_id)
  const state = DEVICE_STATES.find((known) => known === entry.state)
  const remainingSeconds = entry.remaining_seconds
  if (!serviceId || !state || typeof remainingSeconds !== 'number') return undefined
  return {
    serviceId,
    name: text(entry.alias_name) || text(entry.device_name) || serviceId,
    deviceId: text(entry.device_id),
    nodeType: text(entry.node_type),
    uuid: text(entry.uuid),
    payMode: text(entry.pay_mode),
    expireTime: text(entry.expire_time),
    networkTime: text(entry.network_time),
    state,
    remainingSeconds,
    picture: text(entry.picture),
  }
}

// The devices of a list answer, in the service's order. One unreadable entry does not hide the others: it is left
// out with a warning, and so is a repeated one. Throws ApiError (malformed) when there is no list at all.
export function parseDevices(data: unknown): Device[] {
  if (!isObject(data) || !Array.isArray(data.devices))
    throw new ApiError('malformed', 'the device list has no "devices" array')
  const devices = new Map<string, Device>()
  for (const entry of data.devices as unknown[]) {
    const device = parseDevice(entry)
    if (device && !devices.has(device.serviceId)) devices.set(device.serviceId, device)
    else console.warn('Left out a device that cannot be read or is repeated:', entry)
  }
  return [...devices.values()]
}
