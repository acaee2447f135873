import { vi } from 'vitest'

export interface ServiceRequest {
  method: string
  path: string
  headers: Record<string, string>
  body: unknown
  signal: AbortSignal
}

type Answer = { code: number; msg?: string; data?: unknown } | 'unreachable' | 'hang' | Promise<unknown>

// The service as seen through fetch: answers by path, requests noted. "hang" answers only to an abort; a promise
// answers with the envelope that it resolves to.
export class FakeService {
  readonly requests: ServiceRequest[] = []
  readonly answers: Record<string, Answer> = {
    '/apiv1/user/login': {
      code: 200,
      data: { access_token: 'token-1', login_id: 'login-1', user_name: 'Demo', expires_in: 60 },
    },
    '/apiv1/user/logout': { code: 200, data: {} },
    '/apiv1/user/session': { code: 200, data: { user_name: 'Demo', login_id: 'login-1', expires_in: 60 } },
    '/apiv1/client/config': { code: 200, data: { expire_notice_minutes: [30, 10, 5] } },
    '/apiv1/client/update': { code: 200, data: { has_update: false } },
    '/apiv1/device/actionDevice': { code: 200, data: {} },
    '/apiv1/device/batchActionDevice': { code: 200, data: {} },
    '/apiv1/device/ccGroupList': { code: 200, data: { groups: [] } },
    '/apiv1/device/actionCcGroup': { code: 200, data: {} },
    '/apiv1/device/list': { code: 200, data: { devices: [] } },
  }

  readonly fetch = vi.fn((input: RequestInfo | URL, init?: RequestInit): Promise<Response> => {
    const path = (input as string).replace('http://service', '')
    const request = {
      method: init!.method!,
      path,
      headers: init!.headers,
      body: undefined,
      signal: init!.signal,
    }
    if (typeof init!.body === 'string') request.body = JSON.parse(init!.body)
    this.requests.push(request as ServiceRequest)
    return this.answer(path, init!.signal!)
  })

  requestsTo(path: string): ServiceRequest[] {
    return this.requests.filter((request) => request.path === path)
  }

  setDevices(...devices: object[]): void {
    this.answers['/apiv1/device/list'] = { code: 200, data: { devices } }
  }

  private answer(path: string, signal: AbortSignal): Promise<Response> {
    const answer = this.answers[path]
    const aborted = new Promise<never>((_resolve, reject) => {
      const fail = () => {
        reject(new DOMException('aborted', 'AbortError'))
      }
      if (signal.aborted) fail()
      signal.addEventListener('abort', fail)
    })
    if (answer === 'unreachable') return Promise.reject(new TypeError('Failed to fetch'))
    if (answer === 'hang') return aborted
    return Promise.race([Promise.resolve(answer), aborted]).then(
      (body) => ({ status: 200, json: () => Promise.resolve(body) }) as Response,
    )
  }
}

// A device as the service lists it.
export function listedDevice(serviceId: string, aliasName: string, more: object = {}): object {
  return {
    service_id: serviceId,
    device_id: `VM${serviceId}`,
    device_name: `VM${serviceId}`,
    alias_name: aliasName,
    state: 'online',
    pay_mode: 'month',
    expire_time: '2027-01-31 12:00:00',
    network_time: '2026-11-21 09:30:00',
    remaining_seconds: 6_143_400,
    node_type: 'vm',
    uuid: `uuid-${serviceId}`,
    picture: '',
    ...more,
  }
}
