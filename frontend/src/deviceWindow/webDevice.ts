import type { Device } from '@/api/Device'
import type { WebDevice } from '@/bridge/ClientBridge'
import { DEFAULT_API_BASE_URL } from '@/api/ApiClient'

// A device of the list, for a window whose page streams it.
export function webDeviceOf(device: Device, apiHost: string): WebDevice {
  return {
    deviceId: device.deviceId,
    serviceId: device.serviceId,
    nodeType: device.nodeType,
    payMode: device.payMode,
    uuid: device.uuid,
    apiHost,
    aliasName: device.name,
    ttl: String(Math.max(0, Math.floor(device.remainingSeconds))),
  }
}

// The record as the device window's address gives it; what is missing is "".
export function webDeviceFrom(query: URLSearchParams): WebDevice {
  const value = (key: keyof WebDevice) => query.get(key) ?? ''
  return {
    deviceId: value('deviceId'),
    serviceId: value('serviceId'),
    nodeType: value('nodeType'),
    payMode: value('payMode'),
    uuid: value('uuid'),
    apiHost: value('apiHost'),
    aliasName: value('aliasName'),
    ttl: value('ttl'),
  }
}

// The query of a page address whose route is in its hash.
export function hashQuery(hash: string): URLSearchParams {
  return new URLSearchParams(hash.slice(hash.indexOf('?') + 1 || hash.length))
}

// The root of the API that the device window is to use: the record's, if it is one.
export function apiRootOf(device: WebDevice, fallback = DEFAULT_API_BASE_URL): string {
  return /^https?:\/\//.test(device.apiHost) ? device.apiHost.replace(/\/+$/, '') : fallback
}
