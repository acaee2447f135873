import { flushPromises } from '@vue/test-utils'
import { beforeEach, describe, expect, it, vi } from 'vitest'
import { groupNameOf } from '@/groups/GroupStore'
import { FakeService, listedDevice } from './support/FakeService'
import { mountApp, SESSION } from './support/mountApp'

const GROUPS = '/apiv1/device/ccGroupList'
const ACTION = '/apiv1/device/actionCcGroup'

function listedGroup(id: string, name: string, ...serviceIds: string[]): object {
  return {
    cc_group_id: id,
    cc_group_name: name,
    service_ids: serviceIds,
    created_time: '2026-11-21 09:30:00',
  }
}

function setGroups(service: FakeService, ...groups: object[]): void {
  service.answers[GROUPS] = { code: 200, data: { groups } }
}

async function mountGroups(prepare: (service: FakeService) => void = () => undefined) {
  const service = new FakeService()
  service.setDevices(
    listedDevice('1', 'Aurora'),
    listedDevice('2', 'Drift', { state: 'expired' }),
    listedDevice('3', 'Ember'),
  )
  setGroups(service, listedGroup('g1', 'Farm', '3', '2', '1', '99'), listedGroup('g2', 'Empty'))
  prepare(service)
  const app = await mountApp({ service, remembered: SESSION })
  await app.part('to-groups').trigger('click')
  await flushPromises()
  app.bridge.calls.splice(0)
  return { ...app, group: (id: string) => app.page.get(`[data-group-id="${id}"]`) }
}

beforeEach(() => {
  vi.spyOn(console, 'warn').mockImplementation(() => undefined)
})

describe('saved groups', () => {
  it('are shown with their devices', async () => {
    const { page, group } = await mountGroups()
    expect(page.findAll('h3').map((name) => name.text())).toEqual(['Farm', 'Empty'])
    expect(group('g1').get('[data-test="count"]').text()).toBe('3 devices')
    expect(group('g2').get('[data-test="count"]').text()).toBe('No devices in this group')
  })

  it('open with their name and those devices that are online, in their order', async () => {
    const { group, calls } = await mountGroups()
    await group('g1').get('[data-test="open"]').trigger('click')
    const child = (serviceId: string, aliasName: string) => ({
      service_id: serviceId,
      alias_name: aliasName,
      pay_mode: 'month',
      expire_time: '2027-01-31 12:00:00',
      network_time: '2026-11-21 09:30:00',
    })
    expect(calls('openGroupControlWnd').map(({ params }) => params)).toEqual([
      { winData: { label: 'Farm', children: [child('3', 'Ember'), child('1', 'Aurora')] } },
    ])
  })

  it('do not open without devices or while the group window is open', async () => {
    const { group, part, calls } = await mountGroups()
    await group('g2').get('[data-test="open"]').trigger('click')
    expect(part('toast').text()).toBe('No devices in this group')
    window.clusterOpened!(1)
    await flushPromises()
    expect(part('group-open').exists()).toBe(true)
    await group('g1').get('[data-test="open"]').trigger('click')
    expect(calls('openGroupControlWnd')).toHaveLength(0)
    window.clusterOpened!(0)
    await flushPromises()
    expect(part('group-open').exists()).toBe(false)
    await group('g1').get('[data-test="open"]').trigger('click')
    expect(calls('openGroupControlWnd')).toHaveLength(1)
  })

  it('are renamed', async () => {
    const { group, page, part, service } = await mountGroups()
    await group('g1').get('[data-test="rename"]').trigger('click')
    const field = page.get('[name="group-name"]')
    expect(document.activeElement).toBe(field.element)
    expect((field.element as HTMLInputElement).value).toBe('Farm')
    await field.setValue('  Field ')
    setGroups(service, listedGroup('g1', 'Field', '1'))
    await page.get('[role="dialog"] form').trigger('submit')
    await flushPromises()
    expect(service.requestsTo(ACTION)[0]!.body).toEqual({
      action_type: 'rename',
      cc_group_id: 'g1',
      cc_group_name: 'Field',
    })
    expect(page.findAll('h3').map((name) => name.text())).toEqual(['Field'])
    expect(part('save').exists()).toBe(false)
  })

  it('get no name that the service would refuse', async () => {
    const { group, page, part, service } = await mountGroups()
    await group('g1').get('[data-test="rename"]').trigger('click')
    await page.get('[name="group-name"]').setValue('   ')
    await part('save').trigger('click')
    expect(service.requestsTo(ACTION)).toHaveLength(0)
    expect(part('save').attributes('aria-disabled')).toBe('true')
    await page.get('[role="dialog"]').trigger('keydown', { key: 'Escape' })
    expect(page.find('[role="dialog"]').exists()).toBe(false)
  })

  it('are deleted after a question', async () => {
    const { group, page, part, service } = await mountGroups()
    await group('g1').get('[data-test="remove"]').trigger('click')
    expect(page.get('[role="alertdialog"]').text()).toContain('Delete “Farm”?')
    expect(service.requestsTo(ACTION)).toHaveLength(0)
    setGroups(service, listedGroup('g2', 'Empty'))
    await part('confirm').trigger('click')
    await flushPromises()
    expect(service.requestsTo(ACTION)[0]!.body).toEqual({ action_type: 'delete', cc_group_id: 'g1' })
    expect(page.findAll('h3').map((name) => name.text())).toEqual(['Empty'])
  })

  it('stay when the service refuses, and that is told', async () => {
    const { group, page, part, service } = await mountGroups()
    service.answers[ACTION] = { code: 404, msg: 'No such group.' }
    await group('g1').get('[data-test="remove"]').trigger('click')
    await part('confirm').trigger('click')
    await flushPromises()
    expect(part('toast').text()).toBe('The group could not be changed: No such group.')
    expect(page.findAll('h3')).toHaveLength(2)
  })

  it('are none, cannot be had, or are on their way: it says so', async () => {
    const none = await mountGroups((service) => {
      setGroups(service)
    })
    expect(none.part('empty').text()).toContain('No groups yet')
    const slow = await mountGroups((service) => {
      service.answers[GROUPS] = 'hang'
    })
    expect(slow.part('loading').text()).toBe('Loading your groups…')
    const failed = await mountGroups((service) => {
      service.answers[GROUPS] = 'unreachable'
    })
    expect(failed.part('failed').text()).toContain('Can’t reach the service.')
    setGroups(failed.service, listedGroup('g1', 'Farm'))
    await failed.part('retry').trigger('click')
    await flushPromises()
    expect(failed.page.findAll('h3')).toHaveLength(1)
  })

  it('that cannot be read do not hide the others', async () => {
    const { page } = await mountGroups((service) => {
      setGroups(
        service,
        { cc_group_id: 'x' },
        7 as unknown as object,
        listedGroup('g1', 'Farm'),
        listedGroup('g1', 'Twice'),
      )
    })
    expect(page.findAll('h3').map((name) => name.text())).toEqual(['Farm'])
  })

  it('and devices are loaded anew when the client says so', async () => {
    const { service, page } = await mountGroups()
    const before = service.requestsTo('/apiv1/device/list').length
    setGroups(service, listedGroup('g3', 'New', '1'))
    window.getList!()
    await flushPromises()
    expect(service.requestsTo('/apiv1/device/list')).toHaveLength(before + 1)
    expect(page.findAll('h3').map((name) => name.text())).toEqual(['New'])
  })
})

describe('names of groups', () => {
  it.each([
    ['Farm', 'Farm'],
    ['  Farm  ', 'Farm'],
    ['', null],
    ['   ', null],
    ['x'.repeat(50), 'x'.repeat(50)],
    ['x'.repeat(51), null],
    ['😀'.repeat(50), '😀'.repeat(50)],
  ])('"%s"', (text, name) => {
    expect(groupNameOf(text, 50)).toBe(name)
  })
})
