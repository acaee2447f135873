import type { StreamTarget } from '@/stream/StreamClient'
import { ApiError } from './ApiError'
import { isObject, textOf } from './json'

const MAX_PORT = 65_535
const SECURE = 'wss://'

function firstOf(list: unknown): Record<string, unknown> {
  const first: unknown = Array.isArray(list) ? list[0] : undefined
  return isObject(first) ? first : {}
}

function gatewayUrl(address: string, port: number): string {
  const secure = address.startsWith(SECURE)
  const host = address.replace(/^wss?:\/\//, '')
  const bracketed = host.includes(':') && !host.startsWith('[') ? `[${host}]` : host
  return `${secure ? 'wss' : 'ws'}://${bracketed}:${port}/stream`
}

// Where and as whom to stream, from the answer to an application for a device. Throws ApiError (malformed).
export function parseStreamTarget(data: unknown): StreamTarget {
  const { padCode, resultInfo } = isObject(data) ? data : {}
  const { userId, sessionId, controlList } = isObject(resultInfo) ? resultInfo : {}
  const { controlIp, controlPort } = firstOf(firstOf(controlList).controlInfoList)
  const address = textOf(controlIp)
  const port = typeof controlPort === 'number' ? controlPort : 0
  if (!address || !Number.isInteger(port) || port < 1 || port > MAX_PORT)
    throw new ApiError('malformed', 'the answer names no gateway')
  return {
    url: gatewayUrl(address, port),
    userId: typeof userId === 'number' ? userId : -1,
    sessionId: textOf(sessionId),
    padCode: textOf(padCode),
  }
}
