import { flushPromises, type DOMWrapper } from '@vue/test-utils'
import { beforeEach, describe, expect, it, vi } from 'vitest'
import { nextTick } from 'vue'
import { TOAST_MS } from '@/app/ToastStore'
import { SIGN_OUT_PATIENCE_MS } from '@/composables/useSignOut'
import { REFRESH_INTERVAL_MS } from '@/devices/DeviceStore'
import { SessionStore } from '@/session/SessionStore'
import { SafeStorage } from '@/util/SafeStorage'
import { FakeService, listedDevice } from './support/FakeService'
import { mountApp, SESSION, type AppUnderTest } from './support/mountApp'

const LIST = '/apiv1/device/list'
const ACTION = '/apiv1/device/actionDevice'

// An element that is there.
type Found = Omit<DOMWrapper<Element>, 'exists'>

function names(page: DOMWrapper<Element>): string[] {
  return page.findAll('h3').map((name) => name.text())
}

function card(page: DOMWrapper<Element>, serviceId: string): Found {
  return page.get(`[data-service-id="${serviceId}"]`)
}

function refreshNow(): Promise<unknown> {
  window.dispatchEvent(new Event('focus'))
  return flushPromises()
}

async function mountDevices(...devices: object[]): Promise<AppUnderTest> {
  const service = new FakeService()
  service.setDevices(...devices)
  const app = await mountApp({ service, remembered: SESSION })
  app.bridge.calls.splice(0)
  return app
}

// Signs in while the device list behaves as told.
async function enterWith(listAnswer: FakeService['answers'][string]): Promise<AppUnderTest> {
  const service = new FakeService()
  service.answers[LIST] = listAnswer
  const app = await mountApp({ service })
  await app.signIn()
  return app
}

// Pictures "load" when the test says so.
class FakeImage {
  static readonly all: FakeImage[] = []
  onload: (() => void) | null = null
  src = ''
  constructor() {
    FakeImage.all.push(this)
  }
}

beforeEach(() => {
  FakeImage.all.splice(0)
  vi.stubGlobal('Image', FakeImage)
  vi.spyOn(console, 'warn').mockImplementation(() => undefined)
})

describe('the device list', () => {
  it('shows name, state and remaining time', async () => {
    const { page, part } = await mountDevices(
      listedDevice('1', 'Aurora'),
      listedDevice('2', 'Drift', { state: 'restarting', remaining_seconds: 19_800 }),
      listedDevice('3', 'Harbor', { state: 'expired', remaining_seconds: 0 }),
    )
    expect(names(page)).toEqual(['Aurora', 'Drift', 'Harbor'])
    expect(card(page, '1').attributes('aria-label')).toBe('Aurora, Online, 71 days left')
    expect(card(page, '2').get('[data-test="state"]').text()).toBe('Restarting')
    expect(card(page, '2').get('[data-test="remaining"]').text()).toBe('5 h 30 min left')
    expect(card(page, '3').get('[data-test="remaining"]').text()).toBe('Time is over')
    expect(part('counts').text()).toBe('3 devices · 1 online')
    expect(part('user').text()).toBe('Demo')
  })

  it('shows placeholders until the first list is there', async () => {
    const { part, page } = await enterWith('hang')
    expect(part('loading').exists()).toBe(true)
    expect(part('loading').text()).toBe('Loading your devices…')
    expect(page.findAll('h3')).toHaveLength(0)
  })

  it('says so when there are no devices', async () => {
    const { part } = await enterWith({ code: 200, data: { devices: [] } })
    expect(part('empty').text()).toContain('No devices yet')
    expect(part('loading').exists()).toBe(false)
  })

  it('explains a failure and tries again on request', async () => {
    const { page, part, service } = await enterWith('unreachable')
    expect(part('failed').text()).toContain('Can’t reach the service. Check your connection.')
    service.setDevices(listedDevice('1', 'Aurora'))
    await part('retry').trigger('click')
    await flushPromises()
    expect(part('failed').exists()).toBe(false)
    expect(names(page)).toEqual(['Aurora'])
  })
})

describe('keeping the list up to date', () => {
  it('asks again after every interval', async () => {
    vi.useFakeTimers()
    const { service } = await mountDevices(listedDevice('1', 'Aurora'))
    const before = service.requestsTo(LIST).length
    await vi.advanceTimersByTimeAsync(REFRESH_INTERVAL_MS - 1)
    expect(service.requestsTo(LIST)).toHaveLength(before)
    await vi.advanceTimersByTimeAsync(1)
    expect(service.requestsTo(LIST)).toHaveLength(before + 1)
    await vi.advanceTimersByTimeAsync(REFRESH_INTERVAL_MS)
    expect(service.requestsTo(LIST)).toHaveLength(before + 2)
  })

  it('asks when the window comes to the front, but never twice at a time', async () => {
    const { service } = await mountDevices(listedDevice('1', 'Aurora'))
    const before = service.requestsTo(LIST).length
    service.answers[LIST] = 'hang'
    await refreshNow()
    await refreshNow()
    expect(service.requestsTo(LIST)).toHaveLength(before + 1)
  })

  it('changes cards in place', async () => {
    const { page, service } = await mountDevices(listedDevice('1', 'Aurora'), listedDevice('2', 'Drift'))
    const elements = [card(page, '1').element, card(page, '2').element]
    service.setDevices(
      listedDevice('3', 'Ember'),
      listedDevice('1', 'Aurora', { state: 'restarting' }),
      listedDevice('2', 'Renamed'),
    )
    await refreshNow()
    expect(names(page)).toEqual(['Ember', 'Aurora', 'Renamed'])
    expect(card(page, '1').element).toBe(elements[0])
    expect(card(page, '2').element).toBe(elements[1])
    expect(card(page, '1').get('[data-test="state"]').text()).toBe('Restarting')
    service.setDevices(listedDevice('2', 'Renamed'))
    await refreshNow()
    expect(names(page)).toEqual(['Renamed'])
    expect(card(page, '2').element).toBe(elements[1])
  })

  it('keeps the focus where it is', async () => {
    const { page, service } = await mountDevices(listedDevice('1', 'Aurora'), listedDevice('2', 'Drift'))
    ;(card(page, '2').element as HTMLElement).focus()
    service.setDevices(listedDevice('1', 'Aurora'), listedDevice('2', 'Drift', { remaining_seconds: 60 }))
    await refreshNow()
    expect(document.activeElement).toBe(card(page, '2').element)
  })

  it('keeps the cards when a refresh fails, says so, and recovers', async () => {
    const { page, part, service } = await mountDevices(listedDevice('1', 'Aurora'))
    service.answers[LIST] = 'unreachable'
    await refreshNow()
    expect(names(page)).toEqual(['Aurora'])
    expect(part('stale').text()).toBe('Not up to date: Can’t reach the service. Check your connection.')
    service.setDevices(listedDevice('1', 'Aurora'))
    await refreshNow()
    expect(part('stale').exists()).toBe(false)
  })

  it('puts a new picture in the place of the old one only when it is loaded', async () => {
    const { page, service } = await mountDevices(listedDevice('1', 'Aurora', { picture: '/p?1' }))
    const shown = () => card(page, '1').find('img')
    expect(shown().exists()).toBe(false)
    FakeImage.all[0]!.onload!()
    await nextTick()
    const element = shown().element
    expect(shown().attributes('src')).toBe('http://service/p?1')

    service.setDevices(listedDevice('1', 'Aurora', { picture: '/p?2' }))
    await refreshNow()
    expect(FakeImage.all[1]!.src).toBe('http://service/p?2')
    expect(shown().attributes('src')).toBe('http://service/p?1')
    FakeImage.all[1]!.onload!()
    await nextTick()
    expect(shown().attributes('src')).toBe('http://service/p?2')
    expect(shown().element).toBe(element)
  })

  it('does not load an unchanged picture again, nor show one that is out of date', async () => {
    const { service } = await mountDevices(listedDevice('1', 'Aurora', { picture: '/p?1' }))
    await refreshNow()
    expect(FakeImage.all).toHaveLength(1)
    service.setDevices(listedDevice('1', 'Aurora', { picture: '/p?2' }))
    await refreshNow()
    expect(FakeImage.all[0]!.onload).toBeNull()
  })

  it('stops after the sign-out', async () => {
    vi.useFakeTimers()
    const { part, service } = await mountDevices(listedDevice('1', 'Aurora'))
    await part('sign-out').trigger('click')
    await flushPromises()
    const before = service.requestsTo(LIST).length
    await refreshNow()
    await vi.advanceTimersByTimeAsync(2 * REFRESH_INTERVAL_MS)
    expect(service.requestsTo(LIST)).toHaveLength(before)
  })
})

describe('the search', () => {
  it('has the focus first', async () => {
    const { page } = await mountDevices(listedDevice('1', 'Aurora'))
    expect(document.activeElement).toBe(page.get('[name="search"]').element)
  })

  it('narrows the cards while it is typed, whatever the case', async () => {
    const { page, part } = await mountDevices(
      listedDevice('1', 'Aurora'),
      listedDevice('2', 'Drift'),
      listedDevice('3', 'Harbor'),
    )
    const element = card(page, '3').element
    await page.get('[name="search"]').setValue(' AR ')
    expect(names(page)).toEqual(['Harbor'])
    expect(part('counts').text()).toBe('1 match')
    expect(card(page, '3').element).toBe(element)
    expect(card(page, '3').attributes('tabindex')).toBe('0')
  })

  it('says when nothing matches; Escape clears it', async () => {
    const { page, part } = await mountDevices(listedDevice('1', 'Aurora'))
    const search = page.get('[name="search"]')
    await search.setValue('zzz')
    expect(part('no-match').text()).toContain('No device’s name contains “zzz”.')
    await search.trigger('keydown', { key: 'Escape' })
    expect(names(page)).toEqual(['Aurora'])
    expect((search.element as HTMLInputElement).value).toBe('')
  })

  it('is reached with Ctrl+F from anywhere', async () => {
    const { page } = await mountDevices(listedDevice('1', 'Aurora'))
    ;(card(page, '1').element as HTMLElement).focus()
    await card(page, '1').trigger('keydown', { key: 'f', ctrlKey: true })
    expect(document.activeElement).toBe(page.get('[name="search"]').element)
  })
})

describe('the keyboard in the cards', () => {
  // Two columns.
  function layOut(page: DOMWrapper<Element>): void {
    page.findAll('li').forEach((item, index) => {
      Object.defineProperty(item.element, 'offsetTop', { value: Math.floor(index / 2) * 200 })
    })
  }

  async function mountFour(): Promise<AppUnderTest> {
    const app = await mountDevices(
      listedDevice('1', 'Aurora'),
      listedDevice('2', 'Borealis'),
      listedDevice('3', 'Cascade'),
      listedDevice('4', 'Drift'),
    )
    layOut(app.page)
    return app
  }

  function tabStops(page: DOMWrapper<Element>): (string | undefined)[] {
    return page.findAll('li[tabindex="0"]').map((item) => item.attributes('data-service-id'))
  }

  it('has one stop for Tab, and its buttons after it', async () => {
    const { page } = await mountFour()
    expect(tabStops(page)).toEqual(['1'])
    expect(card(page, '1').findAll('button[tabindex="0"]')).toHaveLength(3)
    expect(page.findAll('li button[tabindex="0"]')).toHaveLength(3)
    const controls = card(page, '1').findAll('button, input')
    expect(controls.map((control) => control.attributes('data-test') ?? control.attributes('name'))).toEqual([
      'open',
      'open-web',
      'restart',
      'selected',
    ])
  })

  it('moves with the arrows, Home and End', async () => {
    const { page } = await mountFour()
    ;(card(page, '1').element as HTMLElement).focus()
    const press = async (key: string) => {
      await page.get('li[tabindex="0"]').trigger('keydown', { key })
      return (document.activeElement as HTMLElement).dataset.serviceId
    }
    expect(await press('ArrowRight')).toBe('2')
    expect(await press('ArrowDown')).toBe('4')
    expect(await press('ArrowDown')).toBe('4')
    expect(await press('ArrowLeft')).toBe('3')
    expect(await press('ArrowUp')).toBe('1')
    expect(await press('End')).toBe('4')
    expect(tabStops(page)).toEqual(['4'])
    expect(await press('Home')).toBe('1')
  })

  it('goes from the search to the cards with the down arrow', async () => {
    const { page } = await mountFour()
    await page.get('[name="search"]').trigger('keydown', { key: 'ArrowDown' })
    expect(document.activeElement).toBe(card(page, '1').element)
  })
})

describe('opening a device', () => {
  const openCall = { name: 'openSingleControlWnd', params: { serviceId: '1', aliasName: 'Aurora' } }

  it.each([
    ['Enter', (item: Found) => item.trigger('keydown', { key: 'Enter' })],
    ['a double click', (item: Found) => item.trigger('dblclick')],
    ['the button', (item: Found) => item.get('[data-test="open"]').trigger('click')],
  ])('works with %s', async (_how, open) => {
    const { page, bridge } = await mountDevices(listedDevice('1', 'Aurora'))
    await open(card(page, '1'))
    expect(bridge.calls).toEqual([openCall])
  })

  it('is not done by Enter or a double click on the restart button', async () => {
    const { page, bridge } = await mountDevices(listedDevice('1', 'Aurora'))
    await card(page, '1').get('[data-test="restart"]').trigger('keydown', { key: 'Enter' })
    await card(page, '1').get('[data-test="restart"]').trigger('dblclick')
    expect(bridge.calls).toEqual([])
  })

  it.each([
    ['expired', 'Aurora is not available: its time is over.'],
    ['restarting', 'Aurora is restarting. Try again in a moment.'],
  ])('says why it cannot be while the device is %s', async (state, text) => {
    vi.useFakeTimers()
    const { page, part, bridge, services } = await mountDevices(listedDevice('1', 'Aurora', { state }))
    await card(page, '1').trigger('dblclick')
    expect(bridge.calls).toEqual([])
    expect(part('toast').text()).toBe(text)
    await vi.advanceTimersByTimeAsync(TOAST_MS)
    expect(services.toasts.current.value).toBeNull()
  })
})

describe('restarting a device', () => {
  async function askToRestart(): Promise<AppUnderTest> {
    const app = await mountDevices(listedDevice('1', 'Aurora'))
    const button = card(app.page, '1').get('[data-test="restart"]')
    ;(button.element as HTMLElement).focus()
    await button.trigger('click')
    return app
  }

  it('asks first, with the focus on "Cancel"', async () => {
    const { page, part, service } = await askToRestart()
    expect(page.get('[role="alertdialog"]').text()).toContain('Restart Aurora?')
    expect(document.activeElement).toBe(part('cancel').element)
    expect(service.requestsTo(ACTION)).toHaveLength(0)
  })

  it.each([
    ['Cancel', (app: AppUnderTest) => app.part('cancel').trigger('click')],
    [
      'Escape',
      (app: AppUnderTest) => app.page.get('[role="alertdialog"]').trigger('keydown', { key: 'Escape' }),
    ],
    ['a click beside the dialog', (app: AppUnderTest) => app.page.get('.veil').trigger('click')],
  ])('does nothing after %s, and the focus is back', async (_how, cancel) => {
    const app = await askToRestart()
    await cancel(app)
    expect(app.page.find('[role="alertdialog"]').exists()).toBe(false)
    expect(app.service.requestsTo(ACTION)).toHaveLength(0)
    expect(document.activeElement).toBe(card(app.page, '1').get('[data-test="restart"]').element)
  })

  it('keeps Tab inside the dialog', async () => {
    const { page, part } = await askToRestart()
    const dialog = page.get('[role="alertdialog"]')
    await dialog.trigger('keydown', { key: 'Tab' })
    expect(document.activeElement).toBe(part('confirm').element)
    await dialog.trigger('keydown', { key: 'Tab' })
    expect(document.activeElement).toBe(part('cancel').element)
    await dialog.trigger('keydown', { key: 'Tab', shiftKey: true })
    expect(document.activeElement).toBe(part('confirm').element)
  })

  it('restarts, shows it at once and asks for the list', async () => {
    const { page, part, service } = await askToRestart()
    const before = service.requestsTo(LIST).length
    service.answers[LIST] = 'hang'
    await part('confirm').trigger('click')
    await flushPromises()
    expect(service.requestsTo(ACTION)[0]!.body).toEqual({ service_id: '1', action_type: 'reboot' })
    expect(card(page, '1').get('[data-test="state"]').text()).toBe('Restarting')
    expect(service.requestsTo(LIST)).toHaveLength(before + 1)
  })

  it('does not believe a list that was asked for before', async () => {
    const { page, part, service } = await askToRestart()
    let answerOld: (envelope: unknown) => void = () => undefined
    service.answers[LIST] = new Promise((resolve) => {
      answerOld = resolve
    })
    await refreshNow()
    service.setDevices(listedDevice('1', 'Aurora', { state: 'restarting' }))
    await part('confirm').trigger('click')
    await flushPromises()
    answerOld({ code: 200, data: { devices: [listedDevice('1', 'Aurora')] } })
    await flushPromises()
    expect(card(page, '1').get('[data-test="state"]').text()).toBe('Restarting')
    expect(part('toast').text()).toBe('Aurora is restarting.')
  })

  it('tells when the service refuses', async () => {
    const { page, part, service } = await askToRestart()
    service.answers[ACTION] = { code: 409, msg: 'The device is busy.' }
    await part('confirm').trigger('click')
    await flushPromises()
    expect(part('toast').text()).toBe('Aurora could not be restarted: The device is busy.')
    expect(card(page, '1').get('[data-test="state"]').text()).toBe('Online')
  })
})

describe('the end of a session', () => {
  it('comes with the sign-out: the service is told, the storage is empty', async () => {
    const { page, part, service } = await mountDevices(listedDevice('1', 'Aurora'))
    await part('sign-out').trigger('click')
    await flushPromises()
    expect(service.requestsTo('/apiv1/user/logout')[0]!.headers['access-token']).toBe('token-1')
    expect(localStorage).toHaveLength(0)
    expect(page.find('form').exists()).toBe(true)
    expect(part('message').text()).toBe('')
  })

  it('waits a moment for the service, no longer', async () => {
    vi.useFakeTimers()
    const { page, part, service, calls } = await mountDevices(listedDevice('1', 'Aurora'))
    service.answers['/apiv1/user/logout'] = 'hang'
    await part('sign-out').trigger('click')
    await part('sign-out').trigger('click')
    await vi.advanceTimersByTimeAsync(SIGN_OUT_PATIENCE_MS - 1)
    expect(page.find('form').exists()).toBe(false)
    await vi.advanceTimersByTimeAsync(1)
    expect(page.find('form').exists()).toBe(true)
    expect(calls('logout')).toHaveLength(1)
    expect(service.requestsTo('/apiv1/user/logout')).toHaveLength(1)
  })

  it('has the client close its windows and go back to the sign-in', async () => {
    const { part, bridge } = await mountDevices(listedDevice('1', 'Aurora'))
    await part('sign-out').trigger('click')
    await flushPromises()
    expect(bridge.calls).toEqual([expect.objectContaining({ name: 'logout' }), expect.anything()])
  })

  it('needs no service, and logs when it could not be told', async () => {
    const { page, part, service, calls } = await mountDevices(listedDevice('1', 'Aurora'))
    service.answers['/apiv1/user/logout'] = 'unreachable'
    await part('sign-out').trigger('click')
    await flushPromises()
    expect(page.find('form').exists()).toBe(true)
    expect((calls('writeLog')[0]!.params as { log: string }).log).toContain('not told of the sign-out')
  })

  it('comes with the first refusal by the service, and is explained', async () => {
    const { page, part, service } = await mountDevices(listedDevice('1', 'Aurora'))
    service.answers[LIST] = { code: 401, msg: 'no' }
    await refreshNow()
    expect(page.find('form').exists()).toBe(true)
    expect(part('message').text()).toBe('Your session has ended. Please sign in again.')
    expect(localStorage).toHaveLength(0)
  })

  it('is still explained after the client has loaded the page anew', async () => {
    const { service, calls } = await mountDevices(listedDevice('1', 'Aurora'))
    service.answers[LIST] = { code: 401, msg: 'no' }
    await refreshNow()
    expect(calls('logout')).toHaveLength(1)
    const tab = new SafeStorage(sessionStorage)
    expect(new SessionStore(new SafeStorage(localStorage), tab).endedByService.value).toBe(true)
    expect(new SessionStore(new SafeStorage(localStorage), tab).endedByService.value).toBe(false)
  })

  it("shows nothing of the last user's devices to the next", async () => {
    const { page, part, service, signIn } = await mountDevices(listedDevice('1', 'Aurora'))
    await part('sign-out').trigger('click')
    await flushPromises()
    service.answers[LIST] = 'hang'
    await signIn()
    expect(part('loading').exists()).toBe(true)
    expect(names(page)).toEqual([])
  })

  it('is not brought about by a late refusal of an older session', async () => {
    const { page, services } = await mountDevices(listedDevice('1', 'Aurora'))
    services.session.endRefused({ accessToken: 'older', loginId: 'login-1' })
    await flushPromises()
    expect(page.find('form').exists()).toBe(false)
  })
})
