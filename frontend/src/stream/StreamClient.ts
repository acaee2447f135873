import { Backoff } from './Backoff'
import { ClockOffset } from './ClockOffset'
import { CAST, LOGIN_CODE, messageBytes, readMessage, SESSION_END_CODE, type Body } from './messages'
import { VIDEO_LEVELS } from './videoLevels'
import type { LoginResult, Touch, VideoFrame } from './wire/stream'

export const CONNECT_TIMEOUT_MS = 10_000
export const TICK_MS = 1000
export const SILENCE_MS = 4000
// From here on moves wait for the connection, the newest in the place of the one before.
export const MOVES_WAIT_FROM_BYTES = 16 * 1024
const STUCK_FROM_BYTES = 16 * 1024 * 1024
const MAX_MESSAGE_BYTES = 8 * 1024 * 1024
const PROTOCOL_VERSION = 1
const BUSINESS_TYPE = 1
const MAX_SCREEN_PX = 16_384
const CLOSE_NORMAL = 1000
// Browsers let a page send no other code than 1000 and those above 3000; this says "protocol error" (1002).
const CLOSE_PROTOCOL_ERROR = 3002
export const TOUCH_ACTION = { down: 0, up: 1, move: 2 } as const

export interface StreamTarget {
  // Address of the gateway's stream path, "ws:" or "wss:".
  url: string
  userId: number
  sessionId: string
  padCode: string
}

// Why no further try is made.
export type StreamEnd = 'unknownSession' | 'expired' | 'unsupported' | 'closed' | 'protocol'

export interface ScreenInfo {
  // In portrait, remote pixels.
  width: number
  height: number
  rotation: number
}

export interface StreamListener {
  // Signed in at the gateway; again after every reconnection.
  onLive: (screen: ScreenInfo) => void
  onReconnecting: (why: string) => void
  onEnd: (end: StreamEnd, reason: string) => void
  // Begins with a key frame after every onLive.
  onFrame: (frame: VideoFrame) => void
  onRotation: (rotation: number) => void
  // Mean milliseconds from capture to arrival, about once a second.
  onDelay: (delayMs: number) => void
}

export interface StreamEnvironment {
  createSocket: (url: string) => WebSocket
  // Steady clock, milliseconds.
  now: () => number
  random: () => number
}

export const BROWSER_ENVIRONMENT: StreamEnvironment = {
  createSocket: (url) => new WebSocket(url),
  now: () => performance.now(),
  random: () => Math.random(),
}

// One streaming session with a gateway: signs in, receives video, sends input, and comes back by itself when the
// connection is lost. Input without a connection is dropped; the device lifts the fingers of a lost one.
export class StreamClient {
  private socket: WebSocket | null = null
  private live = false
  private wasLive = false
  private liveSinceMs = 0
  private lastReceivedMs = 0
  private awaitingKeyFrame = true
  private keyFrameAskedMs = -Infinity
  private cast: number = CAST.full
  private quality = 0
  private waitingMove: Touch | null = null
  private ackWaiting = 0
  private lastPingId = 0
  private delaySumMs = 0
  private delayCount = 0
  private connectTimer: ReturnType<typeof setTimeout> | undefined
  private retryTimer: ReturnType<typeof setTimeout> | undefined
  private tickTimer: ReturnType<typeof setInterval> | undefined
  private readonly backoff: Backoff
  private readonly clock = new ClockOffset()

  constructor(
    private readonly target: StreamTarget,
    private readonly listener: StreamListener,
    private readonly environment: StreamEnvironment = BROWSER_ENVIRONMENT,
  ) {
    this.backoff = new Backoff(environment.random)
  }

  start(): void {
    if (!this.socket) this.connect()
  }

  // Ends the session for good; nothing is told any more.
  stop(): void {
    this.drop(CLOSE_NORMAL)
  }

  setPaused(paused: boolean): void {
    const cast = paused ? CAST.paused : CAST.full
    if (cast === this.cast) return
    this.cast = cast
    this.sendCast()
    if (!paused) this.expectKeyFrame()
  }

  // A row of the level table, 0 = automatic.
  setQuality(index: number): void {
    this.quality = index
    this.sendQuality()
  }

  // The picture is lost: decoding needs a key frame.
  requestKeyFrame(): void {
    this.expectKeyFrame()
  }

  sendTouch(touch: Touch): void {
    if (!this.live || !this.socket) return
    if (touch.action === TOUCH_ACTION.move && this.socket.bufferedAmount > MOVES_WAIT_FROM_BYTES) {
      this.waitingMove = touch
      return
    }
    this.flushMove(touch.action !== TOUCH_ACTION.move)
    this.send({ $case: 'touch', value: touch })
  }

  // `action`: 1 down, 2 up, 3 click.
  sendKey(action: number, code: number, shift = false): void {
    this.sendInput({ $case: 'key', value: { action, code, shift } })
  }

  sendText(text: string): void {
    this.sendInput({ $case: 'text', value: { text } })
  }

  private sendInput(body: Body): void {
    if (!this.live) return
    this.flushMove(true)
    this.send(body)
  }

  // A waiting move is sent before what follows it, or dropped for a newer move.
  private flushMove(wanted: boolean): void {
    if (this.waitingMove && wanted) this.send({ $case: 'touch', value: this.waitingMove })
    this.waitingMove = null
  }

  private connect(): void {
    let socket: WebSocket
    try {
      socket = this.environment.createSocket(this.target.url)
    } catch (error) {
      this.end('protocol', `no connection can be made to ${this.target.url}: ${String(error)}`)
      return
    }
    this.socket = socket
    socket.binaryType = 'arraybuffer'
    socket.onopen = () => {
      const { userId, sessionId, padCode } = this.target
      this.send({
        $case: 'login',
        value: { protocolVersion: PROTOCOL_VERSION, userId, sessionId, padCode, businessType: BUSINESS_TYPE },
      })
    }
    socket.onmessage = (event: MessageEvent<unknown>) => {
      this.onData(event.data)
    }
    // An error is always followed by a close.
    socket.onclose = () => {
      this.reconnect('the connection was lost', true)
    }
    this.connectTimer = setTimeout(() => {
      this.reconnect('no sign-in at the gateway in time', true)
    }, CONNECT_TIMEOUT_MS)
  }

  // Forgets the connection, if there is one, without a word to the listener.
  private drop(code: number): void {
    clearTimeout(this.connectTimer)
    clearTimeout(this.retryTimer)
    clearInterval(this.tickTimer)
    const { socket } = this
    this.socket = null
    this.live = false
    this.waitingMove = null
    this.ackWaiting = 0
    this.clock.clear()
    if (!socket) return
    socket.onopen = socket.onmessage = socket.onclose = null
    socket.close(code)
  }

  private reconnect(why: string, atOnce: boolean): void {
    const lastedMs = this.live ? this.environment.now() - this.liveSinceMs : 0
    this.drop(CLOSE_NORMAL)
    this.listener.onReconnecting(why)
    this.retryTimer = setTimeout(
      () => {
        this.connect()
      },
      this.backoff.nextDelay(lastedMs, atOnce),
    )
  }

  private end(end: StreamEnd, reason: string): void {
    this.drop(end === 'protocol' ? CLOSE_PROTOCOL_ERROR : CLOSE_NORMAL)
    this.listener.onEnd(end, reason)
  }

  private onData(data: unknown): void {
    this.lastReceivedMs = this.environment.now()
    if (!(data instanceof ArrayBuffer)) {
      this.end('protocol', 'a text message')
      return
    }
    if (data.byteLength > MAX_MESSAGE_BYTES) {
      this.end('protocol', `a message of ${data.byteLength} bytes`)
      return
    }
    let body: Body | undefined
    try {
      body = readMessage(new Uint8Array(data))
    } catch (error) {
      this.end('protocol', `a malformed message: ${String(error)}`)
      return
    }
    if (body) this.onBody(body)
  }

  private onBody(body: Body): void {
    if (body.$case === 'loginResult' && !this.live) this.onLoginResult(body.value)
    else if (body.$case === 'sessionEnd') this.onSessionEnd(body.value.code, body.value.reason)
    else if (!this.live) return
    else if (body.$case === 'videoFrame') this.onFrame(body.value)
    else if (body.$case === 'screenRotation') this.onRotation(body.value.rotation)
    else if (body.$case === 'ping')
      this.send({
        $case: 'pong',
        value: { id: body.value.id, pingSentUs: body.value.sentUs, repliedUs: this.nowUs() },
      })
    else if (body.$case === 'pong')
      this.clock.addPong(body.value.pingSentUs, this.nowUs(), body.value.repliedUs)
  }

  private onLoginResult(result: LoginResult): void {
    switch (result.code) {
      case LOGIN_CODE.ok:
        this.onSignedIn(result)
        break
      case LOGIN_CODE.unknownSession:
        this.end('unknownSession', result.reason)
        break
      case LOGIN_CODE.expired:
        this.end('expired', result.reason)
        break
      case LOGIN_CODE.unsupportedVersion:
        this.end('unsupported', result.reason)
        break
      default:
        this.reconnect(`the gateway cannot now: ${result.reason}`, false)
    }
  }

  private onSignedIn({ screenWidth, screenHeight, rotation }: LoginResult): void {
    const isSide = (side: number) => side > 0 && side <= MAX_SCREEN_PX
    if (!isSide(screenWidth) || !isSide(screenHeight) || rotation < 0 || rotation > 3) {
      this.end('protocol', `a screen of ${screenWidth} × ${screenHeight}, rotation ${rotation}`)
      return
    }
    clearTimeout(this.connectTimer)
    this.live = true
    this.liveSinceMs = this.environment.now()
    this.send({ $case: 'videoLevels', value: { levels: VIDEO_LEVELS } })
    this.sendQuality()
    this.sendCast()
    this.awaitingKeyFrame = true
    this.keyFrameAskedMs = -Infinity
    if (this.wasLive) this.expectKeyFrame()
    this.wasLive = true
    this.ping()
    this.tickTimer = setInterval(() => {
      this.tick()
    }, TICK_MS)
    this.listener.onLive({ width: screenWidth, height: screenHeight, rotation })
  }

  private onSessionEnd(code: number, reason: string): void {
    if (code === SESSION_END_CODE.closed) this.end('closed', reason)
    else if (code === SESSION_END_CODE.expired) this.end('expired', reason)
    else this.reconnect(`the gateway ended the connection: ${reason}`, code === SESSION_END_CODE.shutdown)
  }

  private onFrame(frame: VideoFrame): void {
    if (!frame.data.length || frame.width > MAX_SCREEN_PX || frame.height > MAX_SCREEN_PX) {
      this.end('protocol', `a picture of ${frame.data.length} bytes, ${frame.width} × ${frame.height}`)
      return
    }
    this.acknowledge(frame.frameId)
    this.measure(frame)
    if (this.cast === CAST.paused) return // was under way
    if (this.awaitingKeyFrame && !frame.keyFrame) {
      this.expectKeyFrame()
      return
    }
    this.awaitingKeyFrame = false
    this.listener.onFrame(frame)
  }

  private onRotation(rotation: number): void {
    if (rotation < 0 || rotation > 3) this.end('protocol', `rotation ${rotation}`)
    else this.listener.onRotation(rotation)
  }

  private expectKeyFrame(): void {
    this.awaitingKeyFrame = true
    const nowMs = this.environment.now()
    if (nowMs - this.keyFrameAskedMs < TICK_MS) return
    this.keyFrameAskedMs = nowMs
    this.send({ $case: 'keyframeRequest', value: {} })
  }

  private acknowledge(frameId: number): void {
    if (this.socket && this.socket.bufferedAmount > 0) this.ackWaiting = frameId
    else {
      this.ackWaiting = 0
      this.send({ $case: 'frameAck', value: { frameId } })
    }
  }

  private measure(frame: VideoFrame): void {
    const offsetUs = this.clock.offsetUs()
    if (offsetUs === null) return
    this.delaySumMs += Math.max(0, this.nowUs() + offsetUs - frame.captureUs) / 1000
    ++this.delayCount
  }

  private tick(): void {
    if (this.environment.now() - this.lastReceivedMs > SILENCE_MS) {
      this.reconnect('the gateway is silent', true)
      return
    }
    if (this.socket && this.socket.bufferedAmount > STUCK_FROM_BYTES) {
      this.reconnect('the connection is stuck', true)
      return
    }
    this.ping()
    if (this.ackWaiting) this.acknowledge(this.ackWaiting)
    if (this.awaitingKeyFrame && this.cast === CAST.full && this.keyFrameAskedMs > -Infinity)
      this.expectKeyFrame()
    if (!this.delayCount) return
    this.listener.onDelay(this.delaySumMs / this.delayCount)
    this.delaySumMs = this.delayCount = 0
  }

  private ping(): void {
    this.send({ $case: 'ping', value: { id: ++this.lastPingId, sentUs: this.nowUs() } })
  }

  private sendQuality(): void {
    if (!this.live) return
    this.send({
      $case: 'videoLevelChoice',
      value: { choice: { $case: 'index', value: this.quality } },
    })
  }

  private sendCast(): void {
    if (this.live) this.send({ $case: 'screenCast', value: { mode: this.cast as 0 | 3 } })
  }

  private nowUs(): number {
    return Math.round(this.environment.now() * 1000)
  }

  private send(body: Body): void {
    if (this.socket?.readyState === WebSocket.OPEN) this.socket.send(messageBytes(body))
  }
}
