import { describe, expect, it, vi } from 'vitest'
import { ApiClient, REQUEST_TIMEOUT_MS, type Identity } from '@/api/ApiClient'
import { FakeService, listedDevice } from './support/FakeService'

function makeClient(identity: Identity | null = { accessToken: 'token-1', loginId: 'login-1' }) {
  const service = new FakeService()
  const onNotSignedIn = vi.fn()
  const api = new ApiClient({
    baseUrl: 'http://service',
    identity: () => identity,
    language: () => 'en',
    onNotSignedIn,
    fetch: service.fetch,
  })
  return { api, service, onNotSignedIn }
}

describe('ApiClient requests', () => {
  it('sends the session and the client in headers', async () => {
    const { api, service } = makeClient()
    await api.listDevices()
    expect(service.requests[0]).toMatchObject({ method: 'GET', path: '/apiv1/device/list', body: undefined })
    expect(service.requests[0]!.headers).toEqual({
      'access-token': 'token-1',
      'login-id': 'login-1',
      lang: 'en',
      terminal: 'cluster_control',
      'pc-version': '1130',
    })
  })

  it('signs in with empty session headers and a JSON body', async () => {
    const { api, service } = makeClient(null)
    const result = await api.signIn('demo', 'pass')
    expect(result).toEqual({ accessToken: 'token-1', loginId: 'login-1', userName: 'Demo' })
    expect(service.requests[0]).toMatchObject({
      method: 'POST',
      path: '/apiv1/user/login',
      body: { account: 'demo', password: 'pass' },
    })
    expect(service.requests[0]!.headers).toMatchObject({
      'access-token': '',
      'login-id': '',
      'Content-Type': 'application/json',
    })
  })

  it('restarts a device by its service id', async () => {
    const { api, service } = makeClient()
    await api.restartDevice('100001')
    expect(service.requests[0]).toMatchObject({
      path: '/apiv1/device/actionDevice',
      body: { service_id: '100001', action_type: 'reboot' },
    })
  })

  it('puts picture paths below the API root', () => {
    const { api } = makeClient()
    expect(api.pictureUrl('/apiv1/device/picture?x=1')).toBe('http://service/apiv1/device/picture?x=1')
    expect(api.pictureUrl('')).toBe('')
  })
})

describe('ApiClient answers', () => {
  it('reads the devices', async () => {
    const { api, service } = makeClient()
    service.setDevices(
      listedDevice('1', 'Aurora', { state: 'restarting', remaining_seconds: 5, picture: '/p' }),
      listedDevice('2', ''),
    )
    await expect(api.listDevices()).resolves.toMatchObject([
      { serviceId: '1', name: 'Aurora', state: 'restarting', remainingSeconds: 5, picture: '/p' },
      { serviceId: '2', name: 'VM2', state: 'online', remainingSeconds: 6_143_400, picture: '' },
    ])
  })

  it('leaves out entries that it cannot read, with a warning, and keeps the others', async () => {
    const warn = vi.spyOn(console, 'warn').mockImplementation(() => undefined)
    const { api, service } = makeClient()
    service.setDevices(
      listedDevice('1', 'Aurora'),
      listedDevice('1', 'Repeated'),
      listedDevice('', 'No id'),
      listedDevice('3', 'Odd state', { state: 'dreaming' }),
      listedDevice('4', 'No time', { remaining_seconds: 'soon' }),
      null as unknown as object,
      listedDevice('5', 'Ember'),
    )
    const devices = await api.listDevices()
    expect(devices.map((device) => device.name)).toEqual(['Aurora', 'Ember'])
    expect(warn).toHaveBeenCalledTimes(5)
  })

  it.each([
    ['no list', { code: 200, data: {} }],
    ['no data', { code: 200 }],
    ['no envelope', Promise.resolve([])],
    ['null', Promise.resolve(null)],
    ['a code that is no number', Promise.resolve({ code: '200', data: { devices: [] } })],
  ])('calls an answer with %s malformed', async (_what, answer) => {
    const { api, service } = makeClient()
    service.answers['/apiv1/device/list'] = answer
    await expect(api.listDevices()).rejects.toMatchObject({ name: 'ApiError', kind: 'malformed' })
  })

  it('calls a sign-in answer without a token malformed', async () => {
    const { api, service } = makeClient(null)
    service.answers['/apiv1/user/login'] = { code: 200, data: { login_id: 'x' } }
    await expect(api.signIn('a', 'b')).rejects.toMatchObject({ kind: 'malformed' })
  })

  it('calls an answer that is not JSON malformed', async () => {
    const { api, service } = makeClient()
    service.fetch.mockResolvedValueOnce(new Response('<html>'))
    await expect(api.listDevices()).rejects.toMatchObject({ kind: 'malformed' })
  })

  it("gives a refusal's code and words", async () => {
    const { api, service, onNotSignedIn } = makeClient()
    service.answers['/apiv1/device/actionDevice'] = { code: 409, msg: 'busy' }
    await expect(api.restartDevice('1')).rejects.toMatchObject({
      kind: 'refused',
      code: 409,
      message: 'busy',
    })
    expect(onNotSignedIn).not.toHaveBeenCalled()
  })

  it('tells whose session the service no longer accepts', async () => {
    const { api, service, onNotSignedIn } = makeClient()
    service.answers['/apiv1/device/list'] = { code: 401, msg: 'no' }
    await expect(api.listDevices()).rejects.toMatchObject({ kind: 'refused', code: 401 })
    expect(onNotSignedIn).toHaveBeenCalledExactlyOnceWith({ accessToken: 'token-1', loginId: 'login-1' })
  })
})

describe('ApiClient without an answer', () => {
  it('says that the service is unreachable', async () => {
    const { api, service } = makeClient()
    service.answers['/apiv1/device/list'] = 'unreachable'
    await expect(api.listDevices()).rejects.toMatchObject({ kind: 'unreachable' })
  })

  it('stops waiting after a while', async () => {
    vi.useFakeTimers()
    const { api, service } = makeClient()
    service.answers['/apiv1/device/list'] = 'hang'
    const outcome = expect(api.listDevices()).rejects.toMatchObject({ kind: 'timeout' })
    await vi.advanceTimersByTimeAsync(REQUEST_TIMEOUT_MS - 1)
    expect(service.requests[0]!.signal.aborted).toBe(false)
    await vi.advanceTimersByTimeAsync(1)
    await outcome
  })

  it('also limits the time that the body takes', async () => {
    vi.useFakeTimers()
    const { api, service } = makeClient()
    service.fetch.mockImplementationOnce((_input, init) =>
      Promise.resolve({
        status: 200,
        json: () =>
          new Promise((_resolve, reject) => {
            init!.signal!.addEventListener('abort', () => {
              reject(new DOMException('aborted', 'AbortError'))
            })
          }),
      } as Response),
    )
    const outcome = expect(api.listDevices()).rejects.toMatchObject({ kind: 'timeout' })
    await vi.advanceTimersByTimeAsync(REQUEST_TIMEOUT_MS)
    await outcome
  })

  it('can be given up, before and during the request', async () => {
    const { api, service } = makeClient()
    service.answers['/apiv1/device/list'] = 'hang'
    const controller = new AbortController()
    const during = expect(api.listDevices(controller.signal)).rejects.toMatchObject({ kind: 'aborted' })
    controller.abort()
    await during
    await expect(api.listDevices(controller.signal)).rejects.toMatchObject({ kind: 'aborted' })
  })
})
