import { flushPromises } from '@vue/test-utils'
import { afterEach, describe, expect, it, vi } from 'vitest'
import { FakeService } from './support/FakeService'
import { mountApp, SESSION, type MountOptions } from './support/mountApp'

const UPDATE = '/apiv1/client/update'
const PACKAGE = {
  update_path: 'http://x/release',
  file_info: [{ file_name: 'Orvane_Setup_1.3.0.exe', size: 1 }],
}

async function mountSettings(options: MountOptions = {}) {
  const app = await mountApp({ ...options, remembered: SESSION })
  await app.part('to-settings').trigger('click')
  await flushPromises()
  return app
}

afterEach(() => {
  document.documentElement.dir = 'ltr'
  document.documentElement.lang = 'en'
})

describe('the language', () => {
  it('is chosen from nineteen, told to the client and the service, and remembered', async () => {
    const { page, calls, service } = await mountSettings()
    expect(page.findAll('[name="language"]')).toHaveLength(19)
    await page.get('[name="language"][value="ar"]').setValue()
    await vi.waitFor(() => {
      expect(page.get('h1').text()).toBe('الإعدادات')
    })
    expect(document.documentElement.dir).toBe('rtl')
    expect(calls('setLanguage').map(({ params }) => params)).toEqual([{ lang: 'ar' }])
    expect(localStorage.getItem('language')).toBe('ar')
    window.dispatchEvent(new Event('focus'))
    await flushPromises()
    expect(service.requests[service.requests.length - 1]!.headers.lang).toBe('ar')
  })

  it('of the last time is taken up at the start, the odd code of Hindi included', async () => {
    const { page, bridge } = await mountApp({ stored: { language: 'hi_IN' } })
    expect(page.get('form').text()).toContain('पासवर्ड')
    expect(bridge.calls[0]).toEqual({ name: 'setLanguage', params: { lang: 'hi_IN' } })
  })

  it('stays English, and the client is not told, for a code that nobody knows', async () => {
    const { page, calls } = await mountApp({ stored: { language: 'xx' } })
    expect(page.get('form').text()).toContain('Password')
    expect(calls('setLanguage')).toHaveLength(0)
  })

  it('stays as it is when its texts cannot be loaded', async () => {
    vi.spyOn(console, 'warn').mockImplementation(() => undefined)
    const { page, part, calls, services } = await mountSettings()
    vi.spyOn(services.texts, 'use').mockRejectedValue(new Error('gone'))
    await page.get('[name="language"][value="de"]').setValue()
    await flushPromises()
    expect(part('toast').text()).toBe('This language could not be loaded.')
    expect(calls('setLanguage')).toHaveLength(0)
    expect(localStorage.getItem('language')).toBeNull()
  })
})

describe('the stand-by time', () => {
  it('is five minutes until another is chosen, which is told and remembered', async () => {
    const { page, calls } = await mountSettings()
    const checked = () => (page.get('[name="standby"]:checked').element as HTMLInputElement).value
    expect(page.findAll('[name="standby"]').map((choice) => choice.attributes('value'))).toEqual([
      '1',
      '3',
      '5',
      '10',
      '30',
    ])
    expect(checked()).toBe('5')
    await page.get('[name="standby"][value="10"]').setValue()
    expect(calls('setStandbyTime').map(({ params }) => params)).toEqual([{ standbyTime: 10 }])
    expect(localStorage.getItem('standbyTime')).toBe('10')
    expect(checked()).toBe('10')
  })

  it('of the last time is kept, also one that is not on offer; nonsense is not', async () => {
    const { services, page } = await mountSettings({ stored: { standbyTime: '7' } })
    expect(services.settings.standbyMinutes.value).toBe(7)
    expect(page.findAll('[name="standby"]')).toHaveLength(6)
    const other = await mountApp({ stored: { standbyTime: 'soon' } })
    expect(other.services.settings.standbyMinutes.value).toBe(5)
  })
})

describe('version and updates', () => {
  it('shows the version', async () => {
    const { part } = await mountSettings()
    expect(part('version').text()).toBe('dev')
  })

  it('says when there is nothing newer', async () => {
    const { part, service } = await mountSettings()
    await part('check').trigger('click')
    await flushPromises()
    expect(part('outcome').text()).toBe('Orvane is up to date.')
    expect(service.requestsTo(UPDATE)[0]!.headers['pc-version']).toBe('1130')
  })

  it('is busy meanwhile and asks only once', async () => {
    const { part, service } = await mountSettings()
    service.answers[UPDATE] = 'hang'
    await part('check').trigger('click')
    await part('check').trigger('click')
    expect(part('check').text()).toBe('Checking…')
    expect(service.requestsTo(UPDATE)).toHaveLength(1)
  })

  it('explains a failure', async () => {
    const { part, service } = await mountSettings()
    service.answers[UPDATE] = 'unreachable'
    await part('check').trigger('click')
    await flushPromises()
    expect(part('outcome').text()).toBe(
      'Could not check for updates: Can’t reach the service. Check your connection.',
    )
  })

  async function mountWithUpdate() {
    const service = new FakeService()
    service.answers[UPDATE] = {
      code: 200,
      data: {
        has_update: true,
        version: '1.3.0',
        version_code: '1200',
        notes: 'Faster',
        pc_update_info: PACKAGE,
      },
    }
    const app = await mountSettings({ service })
    await app.part('check').trigger('click')
    await flushPromises()
    return app
  }

  it('offers a newer version and has the client install it', async () => {
    const { page, part, calls } = await mountWithUpdate()
    expect(page.get('[role="dialog"]').text()).toContain('Orvane 1.3.0 is available')
    expect(part('notes').text()).toBe('Faster')
    await part('install').trigger('click')
    expect(calls('updateNewVersion').map(({ params }) => params)).toEqual([{ pc_update_info: PACKAGE }])
    expect(page.find('[role="dialog"]').exists()).toBe(false)
  })

  it('does nothing when the user would rather wait', async () => {
    const { page, calls } = await mountWithUpdate()
    await page.get('[role="dialog"]').trigger('keydown', { key: 'Escape' })
    expect(page.find('[role="dialog"]').exists()).toBe(false)
    expect(calls('updateNewVersion')).toHaveLength(0)
  })
})
