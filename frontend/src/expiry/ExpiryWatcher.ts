import type { Device } from '@/api/Device'

const MINUTE_MS = 60_000
const LONGEST_TIMEOUT_MS = 3_600_000

type Watched = Pick<Device, 'serviceId' | 'deviceId' | 'name' | 'expireTime' | 'remainingSeconds'>

export interface ExpiryListener {
  // Less than so many minutes are left: one of the thresholds.
  onNotice: (device: Watched, minutes: number) => void
  onExpired: (device: Watched) => void
}

interface Entry {
  device: Watched
  endsAtMs: number
  // The smallest threshold that was told; Infinity for none.
  told: number
  over: boolean
}

// Tells when the user's time with a device nears its end, once for each threshold, and when it is over. What was
// told is forgotten when the device gets a new end. A device that is over when it is first seen is no news; of
// several thresholds that were passed unseen only the smallest counts.
export class ExpiryWatcher {
  private thresholds: number[] = []
  private readonly entries = new Map<string, Entry>()
  private timer: ReturnType<typeof setTimeout> | undefined

  // `now`: steady clock, milliseconds.
  constructor(
    private readonly listener: ExpiryListener,
    private readonly now: () => number = () => performance.now(),
  ) {}

  // Minutes before the end, descending.
  setThresholds(minutes: number[]): void {
    this.thresholds = minutes
    this.check()
  }

  // The devices as the service has just listed them.
  update(devices: readonly Watched[]): void {
    const nowMs = this.now()
    const gone = new Set(this.entries.keys())
    for (const device of devices) {
      gone.delete(device.serviceId)
      const endsAtMs = nowMs + device.remainingSeconds * 1000
      const entry = this.entries.get(device.serviceId)
      if (!entry) {
        const over = device.remainingSeconds <= 0
        this.entries.set(device.serviceId, { device: { ...device }, endsAtMs, told: Infinity, over })
        continue
      }
      if (entry.device.expireTime !== device.expireTime) {
        entry.told = Infinity
        if (device.remainingSeconds > 0) entry.over = false
      }
      entry.device = { ...device }
      entry.endsAtMs = endsAtMs
    }
    for (const serviceId of gone) this.entries.delete(serviceId)
    this.check()
  }

  clear(): void {
    clearTimeout(this.timer)
    this.entries.clear()
  }

  private check(): void {
    clearTimeout(this.timer)
    const nowMs = this.now()
    let nextMs = LONGEST_TIMEOUT_MS
    for (const entry of this.entries.values()) {
      this.tell(entry, entry.endsAtMs - nowMs)
      nextMs = Math.min(nextMs, this.untilNext(entry, entry.endsAtMs - nowMs))
    }
    if (!this.entries.size) return
    this.timer = setTimeout(() => {
      this.check()
    }, Math.ceil(nextMs))
  }

  private tell(entry: Entry, leftMs: number): void {
    if (entry.over) return
    if (leftMs <= 0) {
      entry.over = true
      this.listener.onExpired(entry.device)
      return
    }
    const reached = this.thresholds.filter((minutes) => leftMs <= minutes * MINUTE_MS)
    const smallest = Math.min(...reached)
    if (smallest >= entry.told) return
    entry.told = smallest
    this.listener.onNotice(entry.device, smallest)
  }

  private untilNext(entry: Entry, leftMs: number): number {
    if (entry.over) return Infinity
    const ahead = this.thresholds.map((minutes) => leftMs - minutes * MINUTE_MS).filter((each) => each > 0)
    return Math.min(leftMs, ...ahead)
  }
}
