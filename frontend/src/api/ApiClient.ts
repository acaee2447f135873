import { API_CODE, ApiError } from './ApiError'
import { parseUpdate, type ClientUpdate } from './ClientUpdate'
import { parseDevices, type Device } from './Device'
import { parseGroups, type DeviceGroup } from './DeviceGroup'
import { isObject } from './json'
import { parseStreamTarget } from './streamTarget'
import type { StreamTarget } from '@/stream/StreamClient'

export const DEFAULT_API_BASE_URL = 'http://127.0.0.1:8180'
export const REQUEST_TIMEOUT_MS = 10_000

const TERMINAL = 'cluster_control'
const PC_VERSION = '1130'

// Who is signed in, as the service knows it.
export interface Identity {
  accessToken: string
  loginId: string
}

export interface SignInResult extends Identity {
  userName: string
}

export interface ApiClientOptions {
  // Root of the service's HTTP API, without a trailing slash.
  baseUrl: string
  // The identity to send; asked anew for each request. None before sign-in.
  identity: () => Identity | null
  // Short code of the language of the service's messages.
  language: () => string
  // The service no longer accepts this identity.
  onNotSignedIn: (identity: Identity) => void
  fetch?: typeof fetch
}

interface Envelope {
  code: number
  msg: string
  data: unknown
}

function parseEnvelope(value: unknown, httpStatus: number): Envelope {
  const envelope = value as Partial<Envelope> | null
  if (typeof envelope?.code !== 'number')
    throw new ApiError('malformed', `an answer without a code (HTTP status ${httpStatus})`)
  return {
    code: envelope.code,
    msg: typeof envelope.msg === 'string' ? envelope.msg : '',
    data: envelope.data,
  }
}

// Minutes, descending; nothing that makes no sense.
function parseExpireNotices(data: unknown): number[] {
  const list: unknown = isObject(data) ? data.expire_notice_minutes : undefined
  if (!Array.isArray(list)) throw new ApiError('malformed', 'the settings have no "expire_notice_minutes"')
  const minutes = (list as unknown[]).filter(
    (each): each is number => typeof each === 'number' && Number.isFinite(each) && each > 0,
  )
  return [...new Set(minutes)].sort((a, b) => b - a)
}

function parseSignIn(data: unknown): SignInResult {
  const { access_token, login_id, user_name } = (data ?? {}) as Record<string, unknown>
  if (typeof access_token !== 'string' || typeof login_id !== 'string' || !access_token || !login_id)
    throw new ApiError('malformed', 'the sign-in answer has no "access_token" or "login_id"')
  return {
    accessToken: access_token,
    loginId: login_id,
    userName: typeof user_name === 'string' ? user_name : '',
  }
}

// The service's HTTP API. Every method rejects with an ApiError, and with nothing else.
export class ApiClient {
  private readonly fetch: typeof fetch

  constructor(private readonly options: ApiClientOptions) {
    this.fetch = options.fetch ?? ((input, init) => window.fetch(input, init))
  }

  async signIn(account: string, password: string, signal?: AbortSignal): Promise<SignInResult> {
    return parseSignIn(await this.request('POST', '/apiv1/user/login', { account, password }, signal))
  }

  async signOut(): Promise<void> {
    await this.request('POST', '/apiv1/user/logout', {})
  }

  // Resolves when the identity is still good; refused with API_CODE.notSignedIn when it is not.
  async checkSession(signal?: AbortSignal): Promise<void> {
    await this.request('GET', '/apiv1/user/session', undefined, signal)
  }

  // The minutes of remaining time at which to warn, descending.
  async expireNoticeMinutes(): Promise<number[]> {
    return parseExpireNotices(await this.request('GET', '/apiv1/client/config'))
  }

  // A newer client than this one, or null.
  async findUpdate(): Promise<ClientUpdate | null> {
    return parseUpdate(await this.request('GET', '/apiv1/client/update'))
  }

  async listDevices(signal?: AbortSignal): Promise<Device[]> {
    return parseDevices(await this.request('GET', '/apiv1/device/list', undefined, signal))
  }

  async restartDevice(serviceId: string): Promise<void> {
    await this.deviceAction(serviceId, 'reboot')
  }

  // Those of the devices that can be; refused only if there is none.
  async restartDevices(serviceIds: string[]): Promise<void> {
    const body = { service_ids: serviceIds, action_type: 'reboot' }
    await this.request('POST', '/apiv1/device/batchActionDevice', body)
  }

  // Grants a streaming session with the device.
  async applyForDevice(serviceId: string, signal?: AbortSignal): Promise<StreamTarget> {
    return parseStreamTarget(await this.deviceAction(serviceId, 'device_apply', signal))
  }

  // Gives the user's sessions with the device back.
  async unbindDevice(serviceId: string): Promise<void> {
    await this.deviceAction(serviceId, 'device_unbind')
  }

  async listGroups(signal?: AbortSignal): Promise<DeviceGroup[]> {
    return parseGroups(await this.request('GET', '/apiv1/device/ccGroupList', undefined, signal))
  }

  async renameGroup(id: string, name: string): Promise<void> {
    await this.groupAction({ action_type: 'rename', cc_group_id: id, cc_group_name: name })
  }

  async deleteGroup(id: string): Promise<void> {
    await this.groupAction({ action_type: 'delete', cc_group_id: id })
  }

  // Address of a picture whose path the service gave; "" for none.
  pictureUrl(path: string): string {
    return path ? this.options.baseUrl + path : ''
  }

  // Root of the API, without a trailing slash.
  get baseUrl(): string {
    return this.options.baseUrl
  }

  private deviceAction(serviceId: string, action: string, signal?: AbortSignal): Promise<unknown> {
    const body = { service_id: serviceId, action_type: action }
    return this.request('POST', '/apiv1/device/actionDevice', body, signal)
  }

  private groupAction(body: object): Promise<unknown> {
    return this.request('POST', '/apiv1/device/actionCcGroup', body)
  }

  private async request(
    method: 'GET' | 'POST',
    path: string,
    body?: object,
    signal?: AbortSignal,
  ): Promise<unknown> {
    const identity = this.options.identity()
    const init = { method, headers: this.headers(identity, body), body: body && JSON.stringify(body) }
    const { code, msg, data } = await this.exchange(path, init, signal)
    if (code === API_CODE.ok) return data
    if (code === API_CODE.notSignedIn && identity) this.options.onNotSignedIn(identity)
    throw new ApiError('refused', msg || `the service answered with code ${code}`, code)
  }

  private headers(identity: Identity | null, body?: object): Record<string, string> {
    return {
      'access-token': identity?.accessToken ?? '',
      'login-id': identity?.loginId ?? '',
      lang: this.options.language(),
      terminal: TERMINAL,
      'pc-version': PC_VERSION,
      ...(body && { 'Content-Type': 'application/json' }),
    }
  }

  // One exchange, body included, within REQUEST_TIMEOUT_MS.
  private async exchange(path: string, init: RequestInit, signal?: AbortSignal): Promise<Envelope> {
    const controller = new AbortController()
    const abort = () => controller.abort()
    if (signal?.aborted) abort()
    signal?.addEventListener('abort', abort)
    const timer = setTimeout(abort, REQUEST_TIMEOUT_MS)
    try {
      const response = await this.fetch(this.options.baseUrl + path, { ...init, signal: controller.signal })
      return parseEnvelope(await response.json(), response.status)
    } catch (error) {
      if (error instanceof ApiError) throw error
      if (signal?.aborted) throw new ApiError('aborted', `${path} was given up`)
      if (controller.signal.aborted)
        throw new ApiError('timeout', `${path}: no answer within ${REQUEST_TIMEOUT_MS} ms`)
      if (error instanceof SyntaxError) throw new ApiError('malformed', `${path}: the answer is not JSON`)
      throw new ApiError('unreachable', `${path}: ${String(error)}`)
    } finally {
      clearTimeout(timer)
      signal?.removeEventListener('abort', abort)
    }
  }
}
