import { messageBytes, readMessage, type Body } from '@/stream/messages'
import type { StreamEnvironment } from '@/stream/StreamClient'

type ValueOf<Kind extends Body['$case']> = Extract<Body, { $case: Kind }>['value']

// A WebSocket whose other end is the test.
export class FakeSocket {
  static readonly all: FakeSocket[] = []

  static get latest(): FakeSocket {
    return FakeSocket.all[FakeSocket.all.length - 1]!
  }

  readonly sent: Uint8Array[] = []
  binaryType = ''
  bufferedAmount = 0
  readyState: number = WebSocket.CONNECTING
  closedWith: number | null = null
  onopen: (() => void) | null = null
  onmessage: ((event: { data: unknown }) => void) | null = null
  onclose: (() => void) | null = null

  constructor(readonly url: string) {
    FakeSocket.all.push(this)
  }

  send(bytes: Uint8Array): void {
    this.sent.push(bytes)
  }

  close(code: number): void {
    this.closedWith = code
    this.readyState = WebSocket.CLOSED
  }

  open(): void {
    this.readyState = WebSocket.OPEN
    this.onopen!()
  }

  receive(body: Body): void {
    this.receiveData(messageBytes(body).slice().buffer)
  }

  receiveData(data: unknown): void {
    this.onmessage?.({ data })
  }

  // The connection breaks.
  lose(): void {
    this.readyState = WebSocket.CLOSED
    this.onclose?.()
  }

  bodies(): Body[] {
    return this.sent.map((bytes) => readMessage(bytes)!)
  }

  kinds(): string[] {
    return this.bodies().map((body) => body.$case)
  }

  // What was sent of one kind.
  of<Kind extends Body['$case']>(kind: Kind): ValueOf<Kind>[] {
    const bodies: { $case: string; value: unknown }[] = this.bodies()
    return bodies.filter((body) => body.$case === kind).map((body) => body.value as ValueOf<Kind>)
  }

  signIn(more: object = {}): void {
    this.open()
    this.receive({
      $case: 'loginResult',
      value: { code: 0, reason: '', screenWidth: 720, screenHeight: 1280, rotation: 0, ...more },
    })
  }

  frame(frameId: number, keyFrame = false, captureUs = 0): void {
    this.receive({
      $case: 'videoFrame',
      value: {
        frameId,
        captureUs,
        keyFrame,
        data: new Uint8Array([0, 0, 0, 1, 0x65]),
        width: 720,
        height: 1280,
      },
    })
  }
}

// An environment for streams without a network, with a clock that the test moves.
export class FakeStreaming implements StreamEnvironment {
  nowMs = 1000

  constructor() {
    FakeSocket.all.splice(0)
  }

  createSocket = (url: string): WebSocket => new FakeSocket(url) as unknown as WebSocket
  now = (): number => this.nowMs
  random = (): number => 0
}
