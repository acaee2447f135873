import { flushPromises } from '@vue/test-utils'
import { describe, expect, it, vi } from 'vitest'
import { REQUEST_TIMEOUT_MS } from '@/api/ApiClient'
import { FakeService, listedDevice } from './support/FakeService'
import { mountApp, SESSION } from './support/mountApp'

const LOGIN = '/apiv1/user/login'
const LIST = '/apiv1/device/list'
const SESSION_PATH = '/apiv1/user/session'

describe('signing in', () => {
  it('starts in the account field, and Tab leads over the password to the button', async () => {
    const { page } = await mountApp()
    expect(document.activeElement).toBe(page.get('#account').element)
    const stops = page.findAll('form input, form button').map((stop) => stop.attributes('id') ?? stop.text())
    expect(stops.slice(0, 3)).toEqual(['account', 'password', 'Sign in'])
    expect(page.findAll('form [tabindex]')).toHaveLength(0)
  })

  it('hands the session to the client, sizes the window and shows the devices', async () => {
    const { page, service, bridge, signIn, services } = await mountApp()
    service.setDevices(listedDevice('1', 'Aurora'))
    await signIn()
    expect(service.requestsTo(LOGIN)[0]!.body).toEqual({ account: 'demo', password: 'orvane-demo' })
    expect(bridge.calls.slice(1)).toEqual([
      { name: 'setLoginParams', params: { 'access-token': 'token-1', 'login-id': 'login-1' } },
      { name: 'setWindowSize', params: { width: 1120, height: 760 } },
    ])
    expect(service.requestsTo(LIST)[0]!.headers['access-token']).toBe('token-1')
    expect(page.get('h3').text()).toBe('Aurora')
    expect(services.session.current.value).toEqual(SESSION)
    expect(window.location.hash).toBe('#/')
  })

  it('remembers the session when asked to, which is the default', async () => {
    const { signIn } = await mountApp()
    await signIn()
    expect(localStorage.getItem('accessToken')).toBe('token-1')
    expect(localStorage.getItem('loginId')).toBe('login-1')
  })

  it('leaves nothing in the storage otherwise', async () => {
    const { page, signIn } = await mountApp()
    await page.get('[name="keep"]').setValue(false)
    await signIn()
    expect(page.find('[name="search"]').exists()).toBe(true)
    expect(localStorage).toHaveLength(0)
  })

  it('asks for what is missing, without a request, and puts the cursor there', async () => {
    const { page, part, service } = await mountApp()
    await page.get('#account').setValue('demo')
    await page.get('form').trigger('submit')
    expect(part('message').text()).toBe('Enter your account and password.')
    expect(document.activeElement).toBe(page.get('#password').element)
    await page.get('#account').setValue('  ')
    expect(part('message').text()).toBe('')
    await page.get('form').trigger('submit')
    expect(document.activeElement).toBe(page.get('#account').element)
    expect(service.requests).toHaveLength(0)
  })

  it('drops blanks around the account, none of the password', async () => {
    const { page, service } = await mountApp()
    await page.get('#account').setValue(' demo ')
    await page.get('#password').setValue(' pass ')
    await page.get('form').trigger('submit')
    expect(service.requests[0]!.body).toEqual({ account: 'demo', password: ' pass ' })
  })

  it.each([
    [{ code: 403, msg: 'no' }, 'Wrong account or password.'],
    [{ code: 429, msg: 'no' }, 'Too many failed attempts. Wait a minute, then try again.'],
    [{ code: 400, msg: 'The account is too odd.' }, 'The account is too odd.'],
    ['unreachable' as const, 'Can’t reach the service. Check your connection.'],
    [{ code: 200, data: {} }, 'The service gave an answer that Orvane can’t read.'],
  ])('explains a failure: %j', async (answer, text) => {
    const { page, part, service, signIn, bridge } = await mountApp()
    service.answers[LOGIN] = answer
    await signIn()
    expect(part('message').text()).toBe(text)
    expect(part('message').attributes('role')).toBe('alert')
    expect((page.get('#account').element as HTMLInputElement).value).toBe('demo')
    expect(document.activeElement).toBe(page.get('#password').element)
    expect(bridge.calls.some((call) => call.name === 'setWindowSize')).toBe(false)
    expect(localStorage).toHaveLength(0)
  })

  it('tells when the service takes too long', async () => {
    vi.useFakeTimers()
    const { part, service, signIn } = await mountApp()
    service.answers[LOGIN] = 'hang'
    await signIn()
    await vi.advanceTimersByTimeAsync(REQUEST_TIMEOUT_MS)
    expect(part('message').text()).toBe('The service takes too long to answer. Try again in a moment.')
    expect(part('submit').text()).toBe('Sign in')
  })

  it('is busy while the service thinks, and asks it only once', async () => {
    const { page, part, service, signIn } = await mountApp()
    service.answers[LOGIN] = 'hang'
    await signIn()
    expect(part('submit').text()).toBe('Signing in…')
    expect(page.get('#account').attributes()).toHaveProperty('readonly')
    await page.get('form').trigger('submit')
    expect(service.requestsTo(LOGIN)).toHaveLength(1)
  })

  it('works at the second attempt, without the first message', async () => {
    const { page, part, service, signIn } = await mountApp()
    const answer = service.answers[LOGIN]!
    service.answers[LOGIN] = { code: 403 }
    await signIn()
    expect(part('message').text()).not.toBe('')
    let finish: (envelope: unknown) => void = () => undefined
    service.answers[LOGIN] = new Promise((resolve) => {
      finish = resolve
    })
    await page.get('form').trigger('submit')
    expect(part('message').text()).toBe('')
    finish(answer)
    await flushPromises()
    expect(page.find('[name="search"]').exists()).toBe(true)
  })

  it('shows and hides the password', async () => {
    const { page, part } = await mountApp()
    expect(page.get('#password').attributes('type')).toBe('password')
    expect(part('reveal').attributes('aria-label')).toBe('Show password')
    await part('reveal').trigger('click')
    expect(page.get('#password').attributes('type')).toBe('text')
    expect(part('reveal').attributes('aria-label')).toBe('Hide password')
    await part('reveal').trigger('click')
    expect(page.get('#password').attributes('type')).toBe('password')
  })

  it("shows the client's version", async () => {
    const { part } = await mountApp()
    expect(part('version').text()).toBe('Version dev')
  })

  it('has no way to maximise', async () => {
    const { part } = await mountApp()
    expect(part('minimize').exists()).toBe(true)
    expect(part('maximize').exists()).toBe(false)
  })
})

describe('the session of an earlier start', () => {
  it('leads straight to the devices', async () => {
    const service = new FakeService()
    service.setDevices(listedDevice('1', 'Aurora'))
    const { page, calls } = await mountApp({ service, remembered: SESSION })
    expect(page.get('h3').text()).toBe('Aurora')
    expect(calls('setLoginParams')).toHaveLength(1)
    expect(calls('setWindowSize')).toHaveLength(1)
    expect(service.requestsTo(SESSION_PATH)[0]!.headers).toMatchObject({
      'access-token': 'token-1',
      'login-id': 'login-1',
    })
  })

  it('is tried in sight of the user', async () => {
    const service = new FakeService()
    service.answers[SESSION_PATH] = 'hang'
    const { page, part } = await mountApp({ service, remembered: SESSION })
    expect(part('restoring').text()).toBe('Signing you in…')
    expect(page.find('form').exists()).toBe(false)
  })

  it('is forgotten when the service refuses it', async () => {
    const service = new FakeService()
    service.answers[SESSION_PATH] = { code: 401, msg: 'no' }
    const { page, part, calls } = await mountApp({ service, remembered: SESSION })
    expect(part('message').text()).toBe('Your session has ended. Please sign in again.')
    expect(part('retry').exists()).toBe(false)
    expect(localStorage).toHaveLength(0)
    expect(calls('setWindowSize')).toHaveLength(0)
    expect(document.activeElement).toBe(page.get('#account').element)
  })

  it('is kept, to be tried again, when the service cannot be reached', async () => {
    vi.spyOn(console, 'warn').mockImplementation(() => undefined)
    const service = new FakeService()
    service.answers[SESSION_PATH] = 'unreachable'
    const { page, part } = await mountApp({ service, remembered: SESSION })
    expect(part('message').text()).toBe('Can’t reach the service. Check your connection.')
    expect(localStorage.getItem('accessToken')).toBe('token-1')
    service.answers[SESSION_PATH] = { code: 200, data: {} }
    service.setDevices(listedDevice('1', 'Aurora'))
    await part('retry').trigger('click')
    await flushPromises()
    expect(page.get('h3').text()).toBe('Aurora')
  })

  it('is incomplete without its login id and not tried', async () => {
    const { page, service } = await mountApp({ remembered: { ...SESSION, loginId: '' } })
    expect(service.requests).toHaveLength(0)
    expect(page.find('form').exists()).toBe(true)
  })

  it('costs nothing but itself when the storage does not work', async () => {
    vi.spyOn(console, 'error').mockImplementation(() => undefined)
    const refuse = () => {
      throw new DOMException('no', 'SecurityError')
    }
    vi.spyOn(Storage.prototype, 'getItem').mockImplementation(refuse)
    vi.spyOn(Storage.prototype, 'setItem').mockImplementation(refuse)
    const { page, signIn } = await mountApp()
    await signIn()
    expect(page.find('[name="search"]').exists()).toBe(true)
  })
})
