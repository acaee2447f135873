import { flushPromises } from '@vue/test-utils'
import type { WebChannelTransport } from 'qwebchannel'
import { afterEach, describe, expect, it, vi } from 'vitest'
import { BrowserClientBridge } from '@/bridge/BrowserClientBridge'
import { createClientBridge } from '@/bridge/createClientBridge'
import { ANSWER_TIMEOUT_MS, QtClientBridge } from '@/bridge/QtClientBridge'

const INIT = 3
const INVOKE = 6

interface Message {
  type: number
  id?: number
  object?: string
  method?: number | string
  args?: unknown[]
}

// The client's end of the web channel: publishes "clientApi" with its slot and notes what is sent.
class FakeTransport implements WebChannelTransport {
  readonly messages: Message[] = []
  onmessage: ((event: { data: string }) => void) | null = null

  constructor(private readonly objectName = 'clientApi') {}

  send(text: string): void {
    this.messages.push(JSON.parse(text) as Message)
  }

  // The channel comes up: answers the request for the published objects.
  open(): void {
    const request = this.messages.find((message) => message.type === INIT)!
    const methods = [
      ['callJsApi', 4],
      ['onOpenWebSingleController', 5],
    ]
    const object = { signals: [], methods, properties: [], enums: {} }
    this.onmessage!({
      data: JSON.stringify({ type: 10, id: request.id, data: { [this.objectName]: object } }),
    })
  }

  callTexts(): unknown[] {
    return this.messages.filter((message) => message.type === INVOKE).map((message) => message.args![0])
  }
}

function openBridge() {
  const transport = new FakeTransport()
  const bridge = new QtClientBridge(transport)
  transport.open()
  return { transport, bridge }
}

const globals = window as unknown as Record<string, (answer: unknown) => void>

function callbackOf(callText: unknown): string {
  return (JSON.parse(callText as string) as { callback: string }).callback
}

describe('QtClientBridge', () => {
  afterEach(() => {
    vi.useRealTimers()
  })

  it('sends a call as one JSON text to the slot of "clientApi"', async () => {
    const { transport, bridge } = openBridge()
    bridge.call('setWindowSize', { width: 1120, height: 760 })
    await flushPromises()
    expect(transport.callTexts()).toEqual(['{"jsApiName":"setWindowSize","width":1120,"height":760}'])
    expect(transport.messages.find((message) => message.type === INVOKE)).toMatchObject({
      object: 'clientApi',
      method: 'callJsApi',
    })
  })

  it.each([
    ['closeWindow', {}, '{"jsApiName":"closeWindow"}'],
    ['moveWindow', { x: -3, y: 7 }, '{"jsApiName":"moveWindow","x":-3,"y":7}'],
    [
      'setLoginParams',
      { 'access-token': 't', 'login-id': 'l' },
      '{"jsApiName":"setLoginParams","access-token":"t","login-id":"l"}',
    ],
    [
      'openSingleControlWnd',
      { serviceId: '100001', aliasName: 'Au"rora' },
      '{"jsApiName":"openSingleControlWnd","serviceId":"100001","aliasName":"Au\\"rora"}',
    ],
  ] as const)('writes %s without a callback', async (name, params, text) => {
    const { transport, bridge } = openBridge()
    bridge.call(name, params)
    await flushPromises()
    expect(transport.callTexts()).toEqual([text])
  })

  it('hands a device for a web window to a slot of its own', async () => {
    const { transport, bridge } = openBridge()
    const device = {
      deviceId: 'VM1',
      serviceId: '1',
      nodeType: 'vm',
      payMode: 'month',
      uuid: 'u',
      apiHost: 'http://api',
      aliasName: 'Aurora',
      ttl: '60',
    }
    bridge.openWebDevice(device)
    await flushPromises()
    const message = transport.messages.find(({ type }) => type === INVOKE)!
    expect([message.object, message.args]).toEqual(['clientApi', [device]])
    expect([5, 'onOpenWebSingleController']).toContain(message.method)
  })

  it('waits for the user without end', async () => {
    vi.useFakeTimers()
    const { transport, bridge } = openBridge()
    const answer = bridge.ask('getSavePath', {})
    await vi.advanceTimersByTimeAsync(10 * ANSWER_TIMEOUT_MS)
    globals[callbackOf(transport.callTexts()[0])]!({ savePath: '' })
    await expect(answer).resolves.toEqual({ savePath: '' })
  })

  it('keeps calls, in their order, until the channel is up', async () => {
    const transport = new FakeTransport()
    const bridge = new QtClientBridge(transport)
    bridge.call('minimizeWindow', {})
    bridge.call('closeWindow', {})
    await flushPromises()
    expect(transport.callTexts()).toEqual([])
    transport.open()
    await flushPromises()
    expect(transport.callTexts()).toEqual(['{"jsApiName":"minimizeWindow"}', '{"jsApiName":"closeWindow"}'])
  })

  it('names a global function for the answer and takes it away afterwards', async () => {
    const { transport, bridge } = openBridge()
    const answer = bridge.ask('getAppInfo', {})
    await flushPromises()
    const name = callbackOf(transport.callTexts()[0])
    expect(transport.callTexts()).toEqual([`{"jsApiName":"getAppInfo","callback":"${name}"}`])
    globals[name]!({ appVersion: '1.2.5' })
    await expect(answer).resolves.toEqual({ appVersion: '1.2.5' })
    expect(globals[name]).toBeUndefined()
  })

  it('gives every question its own function', async () => {
    const { transport, bridge } = openBridge()
    const first = bridge.ask('getAppInfo', {})
    const second = bridge.ask('getAppInfo', {})
    await flushPromises()
    const [nameOfFirst, nameOfSecond] = transport.callTexts().map(callbackOf)
    globals[nameOfSecond!]!({ appVersion: 'second' })
    globals[nameOfFirst!]!({ appVersion: 'first' })
    await expect(first).resolves.toEqual({ appVersion: 'first' })
    await expect(second).resolves.toEqual({ appVersion: 'second' })
  })

  it('gives up a question that nobody answers, and bears the late answer', async () => {
    vi.useFakeTimers()
    const { transport, bridge } = openBridge()
    const outcome = expect(bridge.ask('getAppInfo', {})).rejects.toThrow('did not answer "getAppInfo"')
    await vi.advanceTimersByTimeAsync(ANSWER_TIMEOUT_MS)
    await outcome
    const name = callbackOf(transport.callTexts()[0])
    expect(() => globals[name]!({ appVersion: 'late' })).not.toThrow()
    expect(globals[name]).toBeUndefined()
  })

  it('reports calls to a client without "clientApi" and goes on', async () => {
    const error = vi.spyOn(console, 'error').mockImplementation(() => undefined)
    const transport = new FakeTransport('somethingElse')
    const bridge = new QtClientBridge(transport)
    transport.open()
    bridge.call('closeWindow', {})
    await flushPromises()
    expect(error).toHaveBeenCalledWith('"closeWindow" could not be delivered to the client')
    expect(transport.callTexts()).toEqual([])
  })
})

describe('createClientBridge', () => {
  it('uses the web channel inside the client', () => {
    const page = { qt: { webChannelTransport: new FakeTransport() } }
    expect(createClientBridge(page)).toBeInstanceOf(QtClientBridge)
  })

  it('uses a stand-in in a plain browser', () => {
    expect(createClientBridge({})).toBeInstanceOf(BrowserClientBridge)
  })
})

describe('BrowserClientBridge', () => {
  it('notes calls and answers questions', async () => {
    const bridge = new BrowserClientBridge()
    bridge.call('moveWindow', { x: 1, y: 2 })
    expect(bridge.calls).toEqual([{ name: 'moveWindow', params: { x: 1, y: 2 } }])
    await expect(bridge.ask('getAppInfo', {})).resolves.toEqual({ appVersion: 'dev' })
  })

  it('opens a web device window as a window of the browser', () => {
    const open = vi.fn()
    vi.stubGlobal('open', open)
    const device = {
      deviceId: '',
      serviceId: '1',
      nodeType: '',
      payMode: '',
      uuid: '',
      apiHost: 'http://a',
      aliasName: 'Ä b',
      ttl: '',
    }
    new BrowserClientBridge().openWebDevice(device)
    const [url, name] = open.mock.calls[0] as [string, string]
    expect(url).toContain('#/deviceWin/?deviceId=&serviceId=1')
    expect(url).toContain('apiHost=http%3A%2F%2Fa&aliasName=%C3%84+b')
    expect(name).toBe('1')
  })

  it('does not remember without end', () => {
    const bridge = new BrowserClientBridge()
    for (let count = 0; count < 1500; ++count) bridge.call('moveWindow', { x: count, y: 0 })
    expect(bridge.calls).toHaveLength(1000)
    expect(bridge.calls[999]?.params).toEqual({ x: 1499, y: 0 })
  })
})
