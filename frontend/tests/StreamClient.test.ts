import { beforeEach, describe, expect, it, vi } from 'vitest'
import { Backoff } from '@/stream/Backoff'
import { ClockOffset } from '@/stream/ClockOffset'
import {
  CONNECT_TIMEOUT_MS,
  MOVES_WAIT_FROM_BYTES,
  SILENCE_MS,
  StreamClient,
  TICK_MS,
} from '@/stream/StreamClient'
import type { Touch } from '@/stream/wire/stream'
import { FakeSocket, FakeStreaming } from './support/FakeSocket'

const TARGET = { url: 'ws://gateway:1/stream', userId: 7, sessionId: 's', padCode: 'VM1' }

let streaming: FakeStreaming

function startClient() {
  const listener = {
    onLive: vi.fn(),
    onReconnecting: vi.fn(),
    onEnd: vi.fn(),
    onFrame: vi.fn(),
    onRotation: vi.fn(),
    onDelay: vi.fn(),
  }
  const client = new StreamClient(TARGET, listener, streaming)
  client.start()
  return { client, listener }
}

function live() {
  const started = startClient()
  FakeSocket.latest.signIn()
  return started
}

// Lets time go by, for the timers and for the clock.
function pass(ms: number): void {
  for (let rest = ms; rest > 0; rest -= TICK_MS) {
    const step = Math.min(rest, TICK_MS)
    streaming.nowMs += step
    vi.advanceTimersByTime(step)
  }
}

function touch(action: number, x: number): Touch {
  return { action, x: [x], y: [0], pressure: [0], referenceWidth: 720, referenceHeight: 1280 }
}

beforeEach(() => {
  vi.useFakeTimers()
  streaming = new FakeStreaming()
})

describe('signing in at the gateway', () => {
  it('comes first, alone', () => {
    startClient()
    const socket = FakeSocket.latest
    expect(socket.url).toBe(TARGET.url)
    expect(socket.binaryType).toBe('arraybuffer')
    socket.open()
    expect(socket.bodies()).toEqual([
      {
        $case: 'login',
        value: { protocolVersion: 1, userId: 7, sessionId: 's', padCode: 'VM1', businessType: 1 },
      },
    ])
  })

  it('is followed by the settings in their order and a ping', () => {
    const { listener } = live()
    const socket = FakeSocket.latest
    expect(socket.kinds()).toEqual(['login', 'videoLevels', 'videoLevelChoice', 'screenCast', 'ping'])
    expect(socket.of('screenCast')).toEqual([{ mode: 3 }])
    expect(socket.of('videoLevels')[0]!.levels.map(({ width, bitRate }) => [width, bitRate])).toEqual([
      [720, 6144],
      [720, 6144],
      [720, 4096],
      [576, 2048],
      [480, 1024],
      [240, 512],
      [144, 256],
    ])
    expect(listener.onLive).toHaveBeenCalledWith({ width: 720, height: 1280, rotation: 0 })
  })

  it.each([
    [1, 'unknownSession'],
    [2, 'expired'],
    [3, 'unsupported'],
  ])('is over after the refusal %i', (code, end) => {
    const { listener } = startClient()
    FakeSocket.latest.signIn({ code, reason: 'no' })
    expect(listener.onEnd).toHaveBeenCalledWith(end, 'no')
    pass(60_000)
    expect(FakeSocket.all).toHaveLength(1)
  })

  it('is tried again, not at once, when the device is busy', () => {
    const { listener } = startClient()
    FakeSocket.latest.signIn({ code: 4 })
    expect(listener.onEnd).not.toHaveBeenCalled()
    pass(249)
    expect(FakeSocket.all).toHaveLength(1)
    pass(1)
    expect(FakeSocket.all).toHaveLength(2)
  })

  it('is given up after a while, and tried again', () => {
    const { listener } = startClient()
    FakeSocket.latest.open()
    pass(CONNECT_TIMEOUT_MS)
    expect(listener.onReconnecting).toHaveBeenCalledTimes(1)
    expect(FakeSocket.all[0]!.closedWith).toBe(1000)
  })

  it('is not done with a screen that cannot be', () => {
    const { listener } = startClient()
    FakeSocket.latest.signIn({ screenWidth: 0 })
    expect(listener.onEnd).toHaveBeenCalledWith('protocol', expect.stringContaining('0 × 1280'))
  })
})

describe('a lost connection', () => {
  it('is made again at once if it was good, with the same session and a key frame', () => {
    const { client, listener } = live()
    client.setQuality(3)
    pass(2000)
    FakeSocket.latest.receive({ $case: 'pong', value: { id: 1, pingSentUs: 0, repliedUs: 0 } })
    FakeSocket.latest.lose()
    expect(listener.onReconnecting).toHaveBeenCalledTimes(1)
    vi.advanceTimersByTime(0)
    expect(FakeSocket.all).toHaveLength(2)
    FakeSocket.latest.signIn()
    expect(FakeSocket.latest.of('login')[0]!.sessionId).toBe('s')
    expect(FakeSocket.latest.of('videoLevelChoice')).toEqual([{ choice: { $case: 'index', value: 3 } }])
    expect(FakeSocket.latest.of('keyframeRequest')).toHaveLength(1)
    expect(listener.onLive).toHaveBeenCalledTimes(2)
  })

  it('is tried more and more seldom, for ever', () => {
    startClient()
    const waits = [250, 500, 1000, 2000, 4000, 8000, 8000, 8000]
    for (const [index, wait] of waits.entries()) {
      FakeSocket.latest.lose()
      vi.advanceTimersByTime(wait - 1)
      expect(FakeSocket.all).toHaveLength(index + 1)
      vi.advanceTimersByTime(1)
      expect(FakeSocket.all).toHaveLength(index + 2)
    }
  })

  it('is noticed by silence', () => {
    const { listener } = live()
    pass(SILENCE_MS)
    expect(listener.onReconnecting).not.toHaveBeenCalled()
    pass(TICK_MS)
    expect(listener.onReconnecting).toHaveBeenCalledWith('the gateway is silent')
    vi.advanceTimersByTime(1)
    expect(FakeSocket.all).toHaveLength(2)
  })

  it('takes no input, and what waited is dropped', () => {
    const { client } = live()
    FakeSocket.latest.bufferedAmount = MOVES_WAIT_FROM_BYTES + 1
    client.sendTouch(touch(2, 5))
    FakeSocket.latest.lose()
    client.sendText('lost')
    pass(1000)
    FakeSocket.latest.signIn()
    client.sendKey(3, 172)
    expect(FakeSocket.latest.kinds()).not.toContain('text')
    expect(FakeSocket.latest.kinds()).not.toContain('touch')
    expect(FakeSocket.latest.of('key')).toEqual([{ action: 3, code: 172, shift: false }])
  })

  it('is not made again after the stop', () => {
    const { client, listener } = live()
    client.stop()
    FakeSocket.latest.lose()
    pass(20_000)
    expect(FakeSocket.all).toHaveLength(1)
    expect(listener.onReconnecting).not.toHaveBeenCalled()
  })
})

describe('the end that the gateway tells', () => {
  it.each([
    [0, 'closed'],
    [1, 'expired'],
  ])('is final with code %i', (code, end) => {
    const { listener } = live()
    FakeSocket.latest.receive({ $case: 'sessionEnd', value: { code: code as 0 | 1, reason: 'r' } })
    expect(listener.onEnd).toHaveBeenCalledWith(end, 'r')
    pass(20_000)
    expect(FakeSocket.all).toHaveLength(1)
  })

  it('is no end when the gateway only goes down: at once again', () => {
    live()
    streaming.nowMs += 2000
    FakeSocket.latest.receive({ $case: 'sessionEnd', value: { code: 3, reason: '' } })
    vi.advanceTimersByTime(0)
    expect(FakeSocket.all).toHaveLength(2)
  })

  it('is no reason to hurry after a fault of ours', () => {
    live()
    streaming.nowMs += 2000
    FakeSocket.latest.receive({ $case: 'sessionEnd', value: { code: 2, reason: '' } })
    vi.advanceTimersByTime(249)
    expect(FakeSocket.all).toHaveLength(1)
    vi.advanceTimersByTime(1)
    expect(FakeSocket.all).toHaveLength(2)
  })
})

describe('what the gateway must not send', () => {
  it.each<[string, () => void]>([
    ['text', () => FakeSocket.latest.receiveData('{}')],
    ['rubbish', () => FakeSocket.latest.receiveData(new Uint8Array([0xaa, 0x01, 0x7f]).buffer)],
    ['too much', () => FakeSocket.latest.receiveData(new ArrayBuffer(8 * 1024 * 1024 + 1))],
    [
      'an empty picture',
      () => {
        FakeSocket.latest.receive({
          $case: 'videoFrame',
          value: { frameId: 1, captureUs: 0, keyFrame: true, data: new Uint8Array(), width: 1, height: 1 },
        })
      },
    ],
    [
      'a fifth quarter turn',
      () => FakeSocket.latest.receive({ $case: 'screenRotation', value: { rotation: 4 } }),
    ],
  ])('ends the session: %s', (_what, send) => {
    const { listener } = live()
    send()
    expect(listener.onEnd).toHaveBeenCalledWith('protocol', expect.any(String))
    expect(FakeSocket.latest.closedWith).toBe(3002)
  })

  it('before the sign-in counts for nothing', () => {
    const { listener } = startClient()
    FakeSocket.latest.open()
    FakeSocket.latest.frame(1, true)
    expect(listener.onFrame).not.toHaveBeenCalled()
    expect(FakeSocket.latest.kinds()).toEqual(['login'])
  })
})

describe('video', () => {
  it('begins with a key frame, which is asked for if need be', () => {
    const { listener } = live()
    FakeSocket.latest.frame(1)
    expect(listener.onFrame).not.toHaveBeenCalled()
    expect(FakeSocket.latest.of('keyframeRequest')).toHaveLength(1)
    FakeSocket.latest.frame(2)
    expect(FakeSocket.latest.of('keyframeRequest')).toHaveLength(1)
    FakeSocket.latest.frame(3, true)
    FakeSocket.latest.frame(4)
    expect(listener.onFrame.mock.calls.map(([frame]) => (frame as { frameId: number }).frameId)).toEqual([
      3, 4,
    ])
  })

  it('is asked for again until the key frame is there', () => {
    const { client } = live()
    FakeSocket.latest.frame(1, true)
    client.requestKeyFrame()
    pass(TICK_MS)
    expect(FakeSocket.latest.of('keyframeRequest')).toHaveLength(2)
    FakeSocket.latest.frame(2, true)
    pass(TICK_MS)
    expect(FakeSocket.latest.of('keyframeRequest')).toHaveLength(2)
  })

  it('is acknowledged, the newest only while writes wait', () => {
    live()
    const socket = FakeSocket.latest
    socket.frame(1, true)
    socket.bufferedAmount = 10
    socket.frame(2)
    socket.frame(3)
    socket.bufferedAmount = 0
    pass(TICK_MS)
    expect(socket.of('frameAck')).toEqual([{ frameId: 1 }, { frameId: 3 }])
  })

  it('rests while paused and begins anew with a key frame', () => {
    const { client, listener } = live()
    const socket = FakeSocket.latest
    socket.frame(1, true)
    client.setPaused(true)
    socket.frame(2)
    expect(listener.onFrame).toHaveBeenCalledTimes(1)
    client.setPaused(false)
    expect(socket.of('screenCast')).toEqual([{ mode: 3 }, { mode: 0 }, { mode: 3 }])
    expect(socket.of('keyframeRequest')).toHaveLength(1)
    socket.frame(3)
    expect(listener.onFrame).toHaveBeenCalledTimes(1)
  })

  it('stays paused over a reconnection', () => {
    const { client } = live()
    client.setPaused(true)
    FakeSocket.latest.lose()
    pass(1000)
    FakeSocket.latest.signIn()
    expect(FakeSocket.latest.of('screenCast')).toEqual([{ mode: 0 }])
  })

  it('tells the mean delay, corrected for the clocks, once a second', () => {
    const { listener } = live()
    const socket = FakeSocket.latest
    // Sent at 1000 ms, answered at 9 005 000 us of the gateway's clock, received 10 ms later.
    streaming.nowMs = 1010
    socket.receive({ $case: 'pong', value: { id: 1, pingSentUs: 1_000_000, repliedUs: 9_005_000 } })
    socket.frame(1, true, 8_980_000) // 9_010_000 now: 30 ms
    socket.frame(2, false, 9_000_000) // 10 ms
    pass(TICK_MS)
    expect(listener.onDelay.mock.calls).toEqual([[20]])
    socket.receive({ $case: 'ping', value: { id: 9, sentUs: 5 } })
    pass(TICK_MS)
    expect(listener.onDelay).toHaveBeenCalledTimes(1)
  })
})

describe('input and pings', () => {
  it('sends no camera pictures: requests for them are left alone', () => {
    const { client, listener } = live()
    const socket = FakeSocket.latest
    const before = socket.bodies().length
    for (const state of [1, 0])
      socket.receive({ $case: 'sensorRequest', value: { inputType: 212, state, width: 720, height: 1280 } })
    expect(socket.bodies()).toHaveLength(before)
    expect(listener.onEnd).not.toHaveBeenCalled()
    expect(listener.onReconnecting).not.toHaveBeenCalled()
    client.sendTouch(touch(0, 5))
    expect(socket.of('touch')).toHaveLength(1)
  })

  it('answers pings with its own clock', () => {
    live()
    FakeSocket.latest.receive({ $case: 'ping', value: { id: 9, sentUs: 5 } })
    expect(FakeSocket.latest.of('pong')).toEqual([{ id: 9, pingSentUs: 5, repliedUs: 1_000_000 }])
  })

  it('holds moves back while much waits, the newest one, and sends it before what follows', () => {
    const { client } = live()
    const socket = FakeSocket.latest
    socket.bufferedAmount = MOVES_WAIT_FROM_BYTES + 1
    client.sendTouch(touch(2, 1))
    client.sendTouch(touch(2, 2))
    expect(socket.of('touch')).toHaveLength(0)
    client.sendTouch(touch(1, -1))
    expect(socket.of('touch').map(({ action, x }) => [action, x[0]])).toEqual([
      [2, 2],
      [1, -1],
    ])
  })

  it('drops a held move for a newer one', () => {
    const { client } = live()
    const socket = FakeSocket.latest
    socket.bufferedAmount = MOVES_WAIT_FROM_BYTES + 1
    client.sendTouch(touch(2, 1))
    socket.bufferedAmount = 0
    client.sendTouch(touch(2, 3))
    expect(socket.of('touch').map(({ x }) => x[0])).toEqual([3])
  })
})

describe('Backoff', () => {
  it('shortens by up to a half by chance', () => {
    expect(new Backoff(() => 1).nextDelay(0, true)).toBe(125)
    expect(new Backoff(() => 0.5).nextDelay(0, true)).toBe(187.5)
  })

  it('begins anew after a good connection', () => {
    const backoff = new Backoff(() => 0)
    expect([backoff.nextDelay(0, true), backoff.nextDelay(1999, true)]).toEqual([250, 500])
    expect([backoff.nextDelay(2000, true), backoff.nextDelay(0, true)]).toEqual([0, 250])
    expect(backoff.nextDelay(2000, false)).toBe(250)
  })
})

describe('ClockOffset', () => {
  it('goes by the shortest round trip of the newest 16', () => {
    const clock = new ClockOffset()
    expect(clock.offsetUs()).toBeNull()
    clock.addPong(0, 10, 105)
    for (let sample = 0; sample < 15; ++sample) clock.addPong(0, 100, 999)
    expect(clock.offsetUs()).toBe(100)
    clock.addPong(0, 100, 999)
    expect(clock.offsetUs()).toBe(949)
  })
})
