import { flushPromises } from '@vue/test-utils'
import { beforeEach, describe, expect, it, vi } from 'vitest'
import { FakeService, listedDevice } from './support/FakeService'
import { mountApp, SESSION } from './support/mountApp'

const BATCH = '/apiv1/device/batchActionDevice'
const NAMES = ['Aurora', 'Borealis', 'Cascade', 'Drift', 'Ember']

async function mountFive() {
  const service = new FakeService()
  service.setDevices(
    ...NAMES.map((name, index) =>
      listedDevice(String(index + 1), name, { state: name === 'Drift' ? 'expired' : 'online' }),
    ),
  )
  const app = await mountApp({ service, remembered: SESSION })
  app.bridge.calls.splice(0)
  const card = (id: string) => app.page.get(`[data-service-id="${id}"]`)
  return {
    ...app,
    card,
    box: (id: string) => card(id).get('[name="selected"]'),
    selected: () => app.page.findAll('li.selected').map((item) => item.get('h3').text()),
  }
}

describe('selecting devices', () => {
  beforeEach(() => {
    vi.spyOn(console, 'warn').mockImplementation(() => undefined)
  })

  it('works with the boxes', async () => {
    const { box, selected, part } = await mountFive()
    expect(part('selection').exists()).toBe(false)
    await box('1').trigger('click')
    await box('3').trigger('click')
    expect(selected()).toEqual(['Aurora', 'Cascade'])
    expect((box('3').element as HTMLInputElement).checked).toBe(true)
    expect(part('selection').text()).toContain('2 selected')
    await box('1').trigger('click')
    expect(selected()).toEqual(['Cascade'])
  })

  it('works with Ctrl and Shift on the cards, which do not open', async () => {
    const { card, selected, calls } = await mountFive()
    await card('2').trigger('click', { ctrlKey: true })
    await card('4').trigger('click', { shiftKey: true })
    expect(selected()).toEqual(['Borealis', 'Cascade', 'Drift'])
    await card('3').trigger('click', { ctrlKey: true })
    await card('3').trigger('dblclick', { ctrlKey: true })
    expect(selected()).toEqual(['Borealis', 'Drift'])
    await card('1').trigger('click', { shiftKey: true })
    expect(selected()).toEqual(['Aurora', 'Borealis', 'Cascade', 'Drift'])
    expect(calls('openSingleControlWnd')).toHaveLength(0)
  })

  it('is not done by a mere click', async () => {
    const { card, selected } = await mountFive()
    await card('2').trigger('click')
    expect(selected()).toEqual([])
  })

  it('works with the keyboard', async () => {
    const { card, selected } = await mountFive()
    await card('1').trigger('keydown', { key: ' ' })
    await card('3').trigger('keydown', { key: ' ', shiftKey: true })
    expect(selected()).toEqual(['Aurora', 'Borealis', 'Cascade'])
    await card('1').trigger('keydown', { key: 'a', ctrlKey: true })
    expect(selected()).toEqual(NAMES)
    await card('1').trigger('keydown', { key: 'Escape' })
    expect(selected()).toEqual([])
  })

  it('takes all that are shown, and none', async () => {
    const { page, part, selected } = await mountFive()
    await page.get('[name="search"]').setValue('a')
    await part('select-all').trigger('click')
    await page.get('[name="search"]').setValue('')
    expect(selected()).toEqual(['Aurora', 'Borealis', 'Cascade'])
    await part('select-all').trigger('click')
    expect(part('select-all').text()).toBe('Clear selection')
    await part('select-all').trigger('click')
    expect(selected()).toEqual([])
  })

  it('outlives a refresh, without devices that are gone', async () => {
    const { box, selected, service } = await mountFive()
    await box('1').trigger('click')
    await box('2').trigger('click')
    service.setDevices(listedDevice('2', 'Borealis'))
    window.dispatchEvent(new Event('focus'))
    await flushPromises()
    expect(selected()).toEqual(['Borealis'])
  })
})

describe('what to do with the selected devices', () => {
  it('restarts those that are online, after a question', async () => {
    const { box, part, page, service } = await mountFive()
    for (const id of ['1', '3', '4']) await box(id).trigger('click')
    await part('restart-selection').trigger('click')
    expect(page.get('[role="alertdialog"]').text()).toContain('Restart 2 devices?')
    expect(service.requestsTo(BATCH)).toHaveLength(0)
    await part('confirm').trigger('click')
    await flushPromises()
    expect(service.requestsTo(BATCH)[0]!.body).toEqual({ service_ids: ['1', '3'], action_type: 'reboot' })
    expect(part('toast').text()).toBe('2 devices are restarting.')
  })

  it('tells when that fails', async () => {
    const { box, part, service } = await mountFive()
    service.answers[BATCH] = { code: 404, msg: 'None of them is running.' }
    for (const id of ['1', '3']) await box(id).trigger('click')
    await part('restart-selection').trigger('click')
    await part('confirm').trigger('click')
    await flushPromises()
    expect(part('toast').text()).toBe('The devices could not be restarted: None of them is running.')
  })

  it('opens those that are online as a temporary group', async () => {
    const { box, part, calls, selected } = await mountFive()
    for (const id of ['2', '4', '5']) await box(id).trigger('click')
    await part('group-selection').trigger('click')
    const { winData } = calls('openGroupControlWnd')[0]!.params as {
      winData: { label: string; children: { service_id: string }[] }
    }
    expect(winData.label).toBe('')
    expect(winData.children.map((child) => child.service_id)).toEqual(['2', '5'])
    expect(selected()).toEqual([])
  })

  it('does nothing with devices of which none is online', async () => {
    const { box, part, calls, page } = await mountFive()
    await box('4').trigger('click')
    await part('group-selection').trigger('click')
    expect(part('toast').text()).toBe('None of these devices is online.')
    await part('restart-selection').trigger('click')
    expect(page.find('[role="alertdialog"]').exists()).toBe(false)
    expect(calls('openGroupControlWnd')).toHaveLength(0)
  })
})

describe('the web window', () => {
  it('is asked for with the whole record, in texts', async () => {
    vi.stubGlobal('open', vi.fn())
    const { card, calls } = await mountFive()
    await card('1').get('[data-test="open-web"]').trigger('click')
    expect(calls('openWebDevice').map(({ params }) => params)).toEqual([
      {
        deviceId: 'VM1',
        serviceId: '1',
        nodeType: 'vm',
        payMode: 'month',
        uuid: 'uuid-1',
        apiHost: 'http://service',
        aliasName: 'Aurora',
        ttl: '6143400',
      },
    ])
  })

  it('is not opened for a device whose time is over', async () => {
    const { card, calls, part } = await mountFive()
    await card('4').get('[data-test="open-web"]').trigger('click')
    expect(calls('openWebDevice')).toHaveLength(0)
    expect(part('toast').text()).toContain('Drift is not available')
  })
})
