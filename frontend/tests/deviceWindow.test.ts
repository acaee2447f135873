import { flushPromises } from '@vue/test-utils'
import { afterEach, beforeEach, describe, expect, it, vi } from 'vitest'
import { parseStreamTarget } from '@/api/streamTarget'
import * as screenshot from '@/deviceWindow/screenshot'
import { apiRootOf, hashQuery, webDeviceFrom } from '@/deviceWindow/webDevice'
import { FakeService } from './support/FakeService'
import { FakeSocket, FakeStreaming } from './support/FakeSocket'
import { mountApp, SESSION } from './support/mountApp'

const ACTION = '/apiv1/device/actionDevice'
const GATEWAY = { controlIp: '127.0.0.1', controlPort: 8181 }
const HASH =
  '#/deviceWin/?deviceId=VM1&serviceId=1&nodeType=vm&payMode=month&uuid=u&apiHost=http%3A%2F%2Fapi%3A1%2F&aliasName=Au%20rora&ttl=60'

const player = vi.hoisted(() => ({
  feed: vi.fn(),
  destroy: vi.fn(),
  broken: null as ((why: string) => void) | null,
}))
vi.mock('@/stream/H264Player', () => ({
  H264Player: class {
    feed = player.feed
    destroy = player.destroy
    constructor(_video: unknown, listener: { onBroken: (why: string) => void }) {
      player.broken = listener.onBroken
    }
  },
}))

function applied(sessionId = 's1'): { code: number; data: object } {
  const resultInfo = { userId: 7, sessionId, controlList: [{ controlInfoList: [GATEWAY] }] }
  return { code: 200, data: { padCode: 'VM1', resultInfo } }
}

let streaming: FakeStreaming

beforeEach(() => {
  streaming = new FakeStreaming()
  player.feed.mockClear()
  vi.stubGlobal(
    'ResizeObserver',
    class {
      observe(): void {
        return undefined
      }
      disconnect(): void {
        return undefined
      }
    },
  )
})

afterEach(() => {
  Reflect.deleteProperty(document, 'hidden')
})

async function mountWindow(answer: FakeService['answers'][string] = applied(), hash = HASH) {
  const service = new FakeService()
  service.answers[ACTION] = answer
  const app = await mountApp({ service, hash, borrowed: SESSION, streaming })
  const picture = app.part('picture').element
  picture.getBoundingClientRect = () => new DOMRect(0, 0, 360, 640)
  picture.setPointerCapture = vi.fn()
  return app
}

async function mountLive() {
  const app = await mountWindow()
  FakeSocket.latest.signIn()
  await flushPromises()
  app.bridge.calls.splice(0)
  return app
}

function pointer(type: string, pointerId: number, x: number, y: number): Event {
  const event = new MouseEvent(type, { clientX: x, clientY: y, button: 0, bubbles: true })
  Object.defineProperty(event, 'pointerId', { value: pointerId })
  return event
}

function hide(hidden: boolean): void {
  Object.defineProperty(document, 'hidden', { value: hidden, configurable: true })
  document.dispatchEvent(new Event('visibilitychange'))
}

describe("the device window's address", () => {
  it('carries the record behind its route', () => {
    const device = webDeviceFrom(hashQuery(HASH))
    expect(device).toMatchObject({
      serviceId: '1',
      aliasName: 'Au rora',
      uuid: 'u',
      ttl: '60',
      nodeType: 'vm',
    })
    expect(apiRootOf(device)).toBe('http://api:1')
  })

  it('may lack everything; a strange API root is not used', () => {
    expect(webDeviceFrom(hashQuery('#/deviceWin/')).serviceId).toBe('')
    expect(apiRootOf(webDeviceFrom(new URLSearchParams({ apiHost: 'javascript:x' })), 'http://own')).toBe(
      'http://own',
    )
  })
})

describe('where to stream', () => {
  const answer = (controlIp: string, controlPort: unknown = 1) => ({
    padCode: 'VM1',
    resultInfo: {
      userId: 7,
      sessionId: 's',
      controlList: [{ controlInfoList: [{ controlIp, controlPort }] }],
    },
  })

  it.each([
    ['10.0.0.1', 'ws://10.0.0.1:1/stream'],
    ['wss://gate.example', 'wss://gate.example:1/stream'],
    ['::1', 'ws://[::1]:1/stream'],
  ])('%s', (address, url) => {
    expect(parseStreamTarget(answer(address))).toEqual({ url, userId: 7, sessionId: 's', padCode: 'VM1' })
  })

  it.each([[null], [{}], [answer('')], [answer('x', 0)], [answer('x', 70_000)], [answer('x', '1')]])(
    'is not in %j',
    (data) => {
      expect(() => parseStreamTarget(data)).toThrow('names no gateway')
    },
  )
})

describe('the device window', () => {
  it('applies for the device and signs in at its gateway', async () => {
    const { service, part } = await mountWindow()
    expect(service.requestsTo(ACTION)[0]!.body).toEqual({ service_id: '1', action_type: 'device_apply' })
    expect(service.requestsTo(ACTION)[0]!.headers['access-token']).toBe('token-1')
    expect(part('status').text()).toBe('Connecting…')
    expect(FakeSocket.latest.url).toBe('ws://127.0.0.1:8181/stream')
    FakeSocket.latest.open()
    expect(FakeSocket.latest.of('login')[0]).toMatchObject({ userId: 7, sessionId: 's1', padCode: 'VM1' })
    expect(document.title).toBe('Au rora')
  })

  it('asks for the fitting window, again when the device is turned, but not when it reconnects', async () => {
    vi.useFakeTimers()
    vi.spyOn(window.screen, 'availWidth', 'get').mockReturnValue(5000)
    const { calls } = await mountWindow()
    FakeSocket.latest.signIn()
    FakeSocket.latest.receive({ $case: 'screenRotation', value: { rotation: 1 } })
    FakeSocket.latest.receive({ $case: 'screenRotation', value: { rotation: 2 } })
    FakeSocket.latest.lose()
    await vi.advanceTimersByTimeAsync(300)
    FakeSocket.latest.signIn()
    expect(calls('setWindowSize').map(({ params }) => params)).toEqual([
      { width: 390, height: 655 },
      { width: 844, height: 490 },
      { width: 390, height: 655 },
    ])
  })

  it('hands pictures to the player, and asks for a key frame when that is lost', async () => {
    await mountLive()
    FakeSocket.latest.frame(1, true)
    expect(player.feed).toHaveBeenCalledWith(expect.objectContaining({ frameId: 1 }))
    player.broken!('decoder')
    expect(FakeSocket.latest.of('keyframeRequest')).toHaveLength(1)
  })

  it('sends touches where the picture is touched, with several fingers', async () => {
    const { part } = await mountLive()
    const picture = part('picture').element
    picture.dispatchEvent(pointer('pointerdown', 1, 90, 160))
    picture.dispatchEvent(pointer('pointerdown', 2, 180, 320))
    picture.dispatchEvent(pointer('pointerup', 1, 0, 0))
    picture.dispatchEvent(pointer('pointercancel', 2, 0, 0))
    const touches = FakeSocket.latest.of('touch')
    expect(touches.map(({ action, x, y }) => [action, x, y])).toEqual([
      [0, [180], [320]],
      [0, [180, 360], [320, 640]],
      [1, [360], [640]],
      [1, [-1], [-1]],
    ])
    expect(touches[0]).toMatchObject({ pressure: [0], referenceWidth: 720, referenceHeight: 1280 })
  })

  it('turns touches with the picture', async () => {
    const { part } = await mountLive()
    await part('rotate').trigger('click')
    part('picture').element.getBoundingClientRect = () => new DOMRect(0, 0, 640, 360)
    part('picture').element.dispatchEvent(pointer('pointerdown', 1, 320, 90))
    expect(FakeSocket.latest.of('touch')[0]).toMatchObject({ x: [540], y: [640] })
  })

  it('lifts fingers and keys when the window is left', async () => {
    const { part, page } = await mountLive()
    part('picture').element.dispatchEvent(pointer('pointerdown', 1, 90, 160))
    await page.get('textarea').trigger('keydown', { code: 'KeyW', key: 'w' })
    window.dispatchEvent(new Event('blur'))
    expect(FakeSocket.latest.kinds().slice(-4)).toEqual(['touch', 'key', 'touch', 'key'])
    expect(FakeSocket.latest.of('touch')[1]).toMatchObject({ action: 1, x: [-1] })
    expect(FakeSocket.latest.of('key')[1]).toMatchObject({ action: 2, code: 17 })
  })

  it('sends keys, what input methods write, and what is pasted', async () => {
    const { page } = await mountLive()
    const field = page.get('textarea')
    expect(document.activeElement).toBe(field.element)
    await field.trigger('keydown', { code: 'Enter', key: 'Enter' })
    await field.trigger('keyup', { code: 'Enter', key: 'Enter' })
    field.element.dispatchEvent(new CompositionEvent('compositionend', { data: '你好' }))
    const paste = new Event('paste', { cancelable: true })
    Object.assign(paste, { clipboardData: { getData: () => 'pasted\ntext' } })
    field.element.dispatchEvent(paste)
    expect(paste.defaultPrevented).toBe(true)
    expect(FakeSocket.latest.of('key').map(({ action, code }) => [action, code])).toEqual([
      [1, 28],
      [2, 28],
    ])
    expect(FakeSocket.latest.of('text').map(({ text }) => text)).toEqual(['你好', 'pasted\ntext'])
  })

  it.each([
    ['home', 172],
    ['back', 158],
    ['menu', 139],
    ['volumeUp', 115],
    ['volumeDown', 114],
  ])('has a button for %s', async (name, code) => {
    const { part } = await mountLive()
    await part(name).trigger('click')
    expect(FakeSocket.latest.of('key')).toEqual([{ action: 3, code, shift: false }])
  })

  it('lets the picture quality be chosen, which outlives a reconnection', async () => {
    const { part } = await mountLive()
    await part('quality').trigger('click')
    await part('quality-4').trigger('click')
    expect(FakeSocket.latest.of('videoLevelChoice').slice(1)).toEqual([
      { choice: { $case: 'index', value: 4 } },
    ])
    expect(part('quality-4').exists()).toBe(false)
  })

  it('rests while it is hidden', async () => {
    await mountLive()
    hide(true)
    hide(false)
    expect(FakeSocket.latest.of('screenCast').map(({ mode }) => mode)).toEqual([3, 0, 3])
    expect(FakeSocket.latest.kinds().slice(-1)).toEqual(['keyframeRequest'])
  })

  it('shows the delay', async () => {
    vi.useFakeTimers()
    const { part } = await mountLive()
    FakeSocket.latest.receive({ $case: 'pong', value: { id: 1, pingSentUs: 1e6, repliedUs: 1e6 } })
    FakeSocket.latest.frame(1, true, 980_000)
    await vi.advanceTimersByTimeAsync(1000)
    expect(part('delay').text()).toBe('20 ms')
  })

  it('says when the connection is lost, and comes back', async () => {
    vi.useFakeTimers()
    const { part, service } = await mountLive()
    FakeSocket.latest.lose()
    await flushPromises()
    expect(part('status').text()).toBe('Connection lost. Reconnecting…')
    await vi.advanceTimersByTimeAsync(300)
    FakeSocket.latest.signIn()
    await flushPromises()
    expect(FakeSocket.latest.of('login')[0]!.sessionId).toBe('s1')
    expect(service.requestsTo(ACTION)).toHaveLength(1)
  })
})

describe('a device that cannot be shown', () => {
  it('is applied for once more when the gateway refuses, then tried on request', async () => {
    const { service, part } = await mountWindow()
    service.answers[ACTION] = applied('s2')
    FakeSocket.latest.signIn({ code: 1 })
    await flushPromises()
    expect(FakeSocket.all).toHaveLength(2)
    FakeSocket.latest.open()
    expect(FakeSocket.latest.of('login')[0]!.sessionId).toBe('s2')
    FakeSocket.latest.receive({
      $case: 'loginResult',
      value: { code: 1, reason: '', screenWidth: 0, screenHeight: 0, rotation: 0 },
    })
    await flushPromises()
    expect(FakeSocket.all).toHaveLength(2)
    expect(part('failed').text()).toContain('The device refused the connection.')
    await part('retry').trigger('click')
    await flushPromises()
    expect(FakeSocket.all).toHaveLength(3)
    expect(part('failed').exists()).toBe(false)
  })

  it.each([
    [{ code: 410, msg: 'over' }, 'Your time with this device is over.'],
    [{ code: 409, msg: 'The device is restarting.' }, 'The device is restarting.'],
    ['unreachable' as const, 'Can’t reach the service. Check your connection.'],
    [{ code: 200, data: {} }, 'The service gave an answer that Orvane can’t read.'],
  ])('says why: %j', async (answer, text) => {
    const { part } = await mountWindow(answer)
    expect(part('failed').text()).toContain(text)
    expect(part('retry').exists()).toBe(true)
  })

  it('says when its time ends', async () => {
    const { part } = await mountLive()
    FakeSocket.latest.receive({ $case: 'sessionEnd', value: { code: 1, reason: '' } })
    await flushPromises()
    expect(part('failed').text()).toContain('Your time with this device is over.')
  })

  it('is the end without a sign-in, which only the main window can renew', async () => {
    const { part, services, calls } = await mountWindow({ code: 401, msg: 'no' })
    expect(part('failed').text()).toContain('Your session has ended.')
    expect(part('retry').exists()).toBe(false)
    expect(services.session.current.value).toBeNull()
    expect(calls('logout')).toHaveLength(0)
    expect(window.location.hash).toContain('deviceWin')
  })

  it('is the end without a device', async () => {
    const { part, service } = await mountWindow(applied(), '#/deviceWin/')
    expect(part('failed').text()).toContain('The device is not known.')
    expect(service.requests).toHaveLength(0)
  })
})

describe('closing the device window', () => {
  it('gives the device back first', async () => {
    const { part, service, calls } = await mountLive()
    let answer: (envelope: unknown) => void = () => undefined
    service.answers[ACTION] = new Promise((resolve) => {
      answer = resolve
    })
    await part('close').trigger('click')
    expect(FakeSocket.latest.closedWith).toBe(1000)
    expect(service.requestsTo(ACTION)[1]!.body).toEqual({ service_id: '1', action_type: 'device_unbind' })
    expect(calls('closeWindow')).toHaveLength(0)
    answer({ code: 200, data: {} })
    await flushPromises()
    expect(calls('closeWindow')).toHaveLength(1)
  })

  it('does not wait for ever', async () => {
    vi.useFakeTimers()
    const { part, service, calls } = await mountLive()
    service.answers[ACTION] = 'hang'
    await part('close').trigger('click')
    await vi.advanceTimersByTimeAsync(2000)
    expect(calls('closeWindow')).toHaveLength(1)
  })
})

describe('the screenshot', () => {
  it.each([
    ['/home/me/Screen capture', 'Screen capture.png', 'image/png'],
    ['C:\\Pictures\\a.PNG', 'a.PNG', 'image/png'],
    ['/x/a.jpg', 'a.jpg', 'image/jpeg'],
    ['/x.y/a.jpeg', 'a.jpeg', 'image/jpeg'],
    ['/x/a.gif', 'a.gif.png', 'image/png'],
  ])('for %s is the file %s', (path, name, type) => {
    expect(screenshot.pictureFile(path)).toEqual({ name, type })
  })

  const canvas = document.createElement('canvas')

  it('is taken at the click and downloaded once its place is known', async () => {
    vi.spyOn(screenshot, 'grabPicture').mockReturnValue(canvas)
    const download = vi.spyOn(screenshot, 'downloadPicture').mockResolvedValue()
    const { part, bridge } = await mountLive()
    vi.spyOn(bridge, 'ask').mockResolvedValue({ savePath: '/x/a.jpg' } as never)
    await part('capture').trigger('click')
    await flushPromises()
    expect(download).toHaveBeenCalledWith(canvas, { name: 'a.jpg', type: 'image/jpeg' })
  })

  it('is dropped when the user cancels', async () => {
    vi.spyOn(screenshot, 'grabPicture').mockReturnValue(canvas)
    const download = vi.spyOn(screenshot, 'downloadPicture').mockResolvedValue()
    const { part, bridge } = await mountLive()
    vi.spyOn(bridge, 'ask').mockResolvedValue({ savePath: '' } as never)
    await part('capture').trigger('click')
    await flushPromises()
    expect(download).not.toHaveBeenCalled()
  })

  it('cannot be had before there is a picture', async () => {
    const { part, calls } = await mountLive()
    await part('capture').trigger('click')
    expect(part('toast').text()).toBe('The screenshot could not be taken.')
    expect(calls('getSavePath')).toHaveLength(0)
  })

  it('is a picture of its kind, under its name', async () => {
    const click = vi.spyOn(HTMLAnchorElement.prototype, 'click').mockImplementation(() => undefined)
    vi.stubGlobal(
      'URL',
      Object.assign(URL, { createObjectURL: () => 'blob:x', revokeObjectURL: () => undefined }),
    )
    canvas.toBlob = (callback, type) => {
      callback(new Blob(['x'], { type }))
    }
    await screenshot.downloadPicture(canvas, { name: 'a.png', type: 'image/png' })
    expect((click.mock.contexts[0] as HTMLAnchorElement).download).toBe('a.png')
    canvas.toBlob = (callback) => {
      callback(null)
    }
    await expect(screenshot.downloadPicture(canvas, { name: 'a.png', type: 'image/png' })).rejects.toThrow(
      'encoded',
    )
  })
})
