import { flushPromises } from '@vue/test-utils'
import { beforeEach, describe, expect, it, vi } from 'vitest'
import { ExpiryWatcher } from '@/expiry/ExpiryWatcher'
import { FakeService, listedDevice } from './support/FakeService'
import { mountApp, SESSION } from './support/mountApp'

const MINUTE = 60

function device(serviceId: string, remainingSeconds: number, expireTime = 'e1') {
  return { serviceId, deviceId: `VM${serviceId}`, name: `Phone ${serviceId}`, expireTime, remainingSeconds }
}

describe('ExpiryWatcher', () => {
  let nowMs = 0
  let told: string[] = []

  beforeEach(() => {
    vi.useFakeTimers()
    nowMs = 0
    told = []
  })

  function watcher(thresholds = [30, 10, 5]) {
    const made = new ExpiryWatcher(
      {
        onNotice: ({ serviceId }, minutes) => told.push(`${serviceId}: ${minutes}`),
        onExpired: ({ serviceId }) => told.push(`${serviceId}: over`),
      },
      () => nowMs,
    )
    made.setThresholds(thresholds)
    return made
  }

  function pass(seconds: number): void {
    nowMs += seconds * 1000
    vi.advanceTimersByTime(seconds * 1000)
  }

  it('tells each threshold once, at its time, and the end, without a new list', () => {
    const made = watcher()
    made.update([device('1', 31 * MINUTE)])
    expect(told).toEqual([])
    pass(MINUTE)
    expect(told).toEqual(['1: 30'])
    pass(20 * MINUTE)
    expect(told).toEqual(['1: 30', '1: 10'])
    pass(5 * MINUTE)
    pass(5 * MINUTE)
    expect(told).toEqual(['1: 30', '1: 10', '1: 5', '1: over'])
    pass(60 * MINUTE)
    expect(told).toHaveLength(4)
    expect(vi.getTimerCount()).toBeLessThanOrEqual(1)
  })

  it('does not repeat itself with later lists', () => {
    const made = watcher()
    made.update([device('1', 9 * MINUTE)])
    made.update([device('1', 9 * MINUTE - 10)])
    made.update([device('1', 9 * MINUTE + 1)])
    expect(told).toEqual(['1: 10'])
  })

  it('tells only the smallest of the thresholds that were passed unseen', () => {
    watcher().update([device('1', 4 * MINUTE)])
    expect(told).toEqual(['1: 5'])
  })

  it('is silent about a device that is over when it is first seen', () => {
    const made = watcher()
    made.update([device('1', 0)])
    made.update([device('1', -5)])
    expect(told).toEqual([])
  })

  it('begins anew when the device gets a new end', () => {
    const made = watcher()
    made.update([device('1', 4 * MINUTE)])
    made.update([device('1', 40 * MINUTE, 'e2')])
    pass(10 * MINUTE)
    expect(told).toEqual(['1: 5', '1: 30'])
    pass(30 * MINUTE)
    made.update([device('1', 3 * MINUTE, 'e3')])
    expect(told.slice(2)).toEqual(['1: over', '1: 5'])
  })

  it('tells when the end was moved to now', () => {
    const made = watcher()
    made.update([device('1', 5000 * MINUTE)])
    made.update([device('1', 0, 'e2')])
    expect(told).toEqual(['1: over'])
    made.update([device('1', 0, 'e3')])
    expect(told).toHaveLength(1)
  })

  it('keeps devices apart and forgets those that are gone', () => {
    const made = watcher()
    made.update([device('1', 11 * MINUTE), device('2', 12 * MINUTE)])
    expect(told).toEqual(['1: 30', '2: 30'])
    made.update([device('2', 12 * MINUTE)])
    pass(2 * MINUTE)
    expect(told).toEqual(['1: 30', '2: 30', '2: 10'])
  })

  it('tells about the end even without thresholds, and about thresholds that come later', () => {
    const made = watcher([])
    made.update([device('1', MINUTE), device('2', 8 * MINUTE)])
    expect(told).toEqual([])
    made.setThresholds([30, 10])
    expect(told).toEqual(['1: 10', '2: 10'])
    pass(MINUTE)
    expect(told).toEqual(['1: 10', '2: 10', '1: over'])
  })

  it('tells nothing after clear()', () => {
    const made = watcher()
    made.update([device('1', 11 * MINUTE)])
    told = []
    made.clear()
    pass(60 * MINUTE)
    expect(told).toEqual([])
  })
})

describe('expiry in the page', () => {
  async function mountWith(remaining: number, more: object = {}) {
    const service = new FakeService()
    service.setDevices(listedDevice('1', 'Aurora', { remaining_seconds: remaining, ...more }))
    return mountApp({ service, remembered: SESSION })
  }

  async function refresh(): Promise<void> {
    window.dispatchEvent(new Event('focus'))
    await flushPromises()
  }

  it('warns here and in the group window', async () => {
    const { part, calls } = await mountWith(9 * MINUTE)
    expect(calls('showRenewWnd').map(({ params }) => params)).toEqual([
      { params: { service_id: '1', device_id: 'VM1', expire_notice: 10 } },
    ])
    expect(part('expiry').text()).toContain('Aurora: less than 10 minutes left')
    await part('dismiss').trigger('click')
    expect(part('expiry').exists()).toBe(false)
    await refresh()
    expect(part('expiry').exists()).toBe(false)
    expect(calls('showRenewWnd')).toHaveLength(1)
  })

  it('tells when the time is over', async () => {
    const { part, calls, service } = await mountWith(9 * MINUTE)
    service.setDevices(
      listedDevice('1', 'Aurora', {
        state: 'expired',
        remaining_seconds: 0,
        expire_time: '2026-11-21 09:30:00',
      }),
    )
    await refresh()
    expect(calls('deviceExpiration').map(({ params }) => params)).toEqual([
      { params: { service_id: '1', device_id: 'VM1' } },
    ])
    expect(part('expiry').text()).toBe('Aurora: time is over')
  })

  it('takes the warning back when the device is renewed', async () => {
    const { part, service } = await mountWith(9 * MINUTE)
    service.setDevices(listedDevice('1', 'Aurora', { expire_time: '2027-02-28 12:00:00' }))
    await refresh()
    expect(part('expiry').exists()).toBe(false)
  })

  it('asks again for the thresholds when there was no answer', async () => {
    vi.spyOn(console, 'warn').mockImplementation(() => undefined)
    const service = new FakeService()
    service.answers['/apiv1/client/config'] = 'unreachable'
    service.setDevices(listedDevice('1', 'Aurora', { remaining_seconds: 60 }))
    const { calls } = await mountApp({ service, remembered: SESSION })
    expect(calls('showRenewWnd')).toHaveLength(0)
    service.answers['/apiv1/client/config'] = { code: 200, data: { expire_notice_minutes: [5, 30, 'x', -1] } }
    await refresh()
    expect(calls('showRenewWnd')).toHaveLength(1)
    await refresh()
    expect(service.requestsTo('/apiv1/client/config')).toHaveLength(2)
  })
})
