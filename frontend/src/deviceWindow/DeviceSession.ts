import type { ApiClient } from '@/api/ApiClient'
import { API_CODE, ApiError, isAborted } from '@/api/ApiError'
import {
  BROWSER_ENVIRONMENT,
  StreamClient,
  type ScreenInfo,
  type StreamEnd,
  type StreamEnvironment,
  type StreamListener,
} from '@/stream/StreamClient'
import { apiErrorText, type ErrorText } from '@/util/errorText'
import { shallowRef } from 'vue'

// - applying: the service is asked for the device
// - connecting: on the way to the gateway for the first time
// - live: the gateway has let us in
// - reconnecting: the connection was lost, and is being made again
// - failed: over, until somebody tries again; `failure` says why
export type SessionPhase = 'applying' | 'connecting' | 'live' | 'reconnecting' | 'failed'

const END_TEXT: Record<StreamEnd, ErrorText> = {
  unknownSession: { key: 'web.refused' },
  expired: { key: 'web.expired' },
  unsupported: { key: 'web.unsupported' },
  closed: { key: 'web.closed' },
  protocol: { key: 'web.unreadable' },
}

export type SessionListener = Pick<StreamListener, 'onFrame' | 'onRotation'> & {
  onScreen: (screen: ScreenInfo) => void
  log: (text: string) => void
}

// The page's session with one device: applies for it, streams it, applies once more when the gateway refuses, and
// gives the device back at the end.
export class DeviceSession {
  readonly phase = shallowRef<SessionPhase>('applying')
  readonly failure = shallowRef<ErrorText | null>(null)
  // Milliseconds from capture to arrival; null while unknown.
  readonly delayMs = shallowRef<number | null>(null)

  private client: StreamClient | null = null
  private abort = new AbortController()
  private paused = false
  private quality = 0
  private appliedAgain = false

  constructor(
    private readonly api: ApiClient,
    private readonly serviceId: string,
    private readonly listener: SessionListener,
    private readonly environment: StreamEnvironment = BROWSER_ENVIRONMENT,
  ) {}

  // For the first time, or again after a failure.
  start(): Promise<void> {
    this.appliedAgain = false
    return this.apply()
  }

  // The stream to send input with; null before there is one.
  get stream(): StreamClient | null {
    return this.client
  }

  setPaused(paused: boolean): void {
    this.paused = paused
    this.client?.setPaused(paused)
  }

  setQuality(index: number): void {
    this.quality = index
    this.client?.setQuality(index)
  }

  // Leaves the gateway; nothing happens any more.
  stop(): void {
    this.abort.abort()
    this.client?.stop()
    this.client = null
  }

  // Leaves the gateway and gives the device back. Never rejects: nobody could do anything about it.
  async giveBack(): Promise<void> {
    this.stop()
    try {
      await this.api.unbindDevice(this.serviceId)
    } catch (error) {
      this.listener.log(`the device could not be given back: ${String(error)}`)
    }
  }

  private async apply(): Promise<void> {
    this.stop()
    this.abort = new AbortController()
    const { signal } = this.abort
    this.phase.value = 'applying'
    this.failure.value = null
    try {
      const target = await this.api.applyForDevice(this.serviceId, signal)
      if (signal.aborted) return
      this.phase.value = 'connecting'
      this.client = new StreamClient(target, this.streamListener(), this.environment)
      this.client.setPaused(this.paused)
      this.client.setQuality(this.quality)
      this.client.start()
    } catch (error) {
      if (isAborted(error) || signal.aborted) return
      if (!(error instanceof ApiError)) throw error
      this.fail(error.code === API_CODE.expired ? END_TEXT.expired : apiErrorText(error), error.message)
    }
  }

  private streamListener(): StreamListener {
    return {
      onLive: (screen) => {
        this.phase.value = 'live'
        this.listener.onScreen(screen)
      },
      onReconnecting: (why) => {
        this.listener.log(`connecting again: ${why}`)
        this.delayMs.value = null
        this.phase.value = 'reconnecting'
      },
      onEnd: (end, reason) => {
        this.onEnd(end, reason)
      },
      onFrame: (frame) => {
        this.listener.onFrame(frame)
      },
      onRotation: (rotation) => {
        this.listener.onRotation(rotation)
      },
      onDelay: (delayMs) => {
        this.delayMs.value = delayMs
      },
    }
  }

  private onEnd(end: StreamEnd, reason: string): void {
    this.delayMs.value = null
    if (end === 'unknownSession' && !this.appliedAgain) {
      this.listener.log(`applying again: the gateway refused the session: ${reason}`)
      this.appliedAgain = true
      void this.apply()
      return
    }
    this.fail(END_TEXT[end], reason)
  }

  private fail(text: ErrorText, reason: string): void {
    this.listener.log(`the device cannot be shown: ${reason}`)
    this.client = null
    this.failure.value = text
    this.phase.value = 'failed'
  }
}
