import JMuxer from 'jmuxer/src/jmuxer.js'
import { frameDurationMs, paceFor } from './liveEdge'
import type { VideoFrame } from './wire/stream'

// Playing catches up by itself; the muxer's own jumps are never wanted.
const NO_DELAY_LIMIT_MS = 3_600_000
const LEAST_AHEAD_S = 0.01

export interface PlayerListener {
  // The picture is lost until a key frame is fed.
  onBroken: (why: string) => void
}

// Shows H.264 access units in a video element as soon as they come. Feed begins with a key frame. The pictures in
// front of the newest are played fast or jumped over, never replayed at leisure.
export class H264Player {
  private muxer: JMuxer | null = null
  private ready = false
  private started: VideoFrame[] = []
  private previousCaptureUs: number | null = null
  private watched: SourceBuffer | null = null
  private source: MediaSource | null = null

  constructor(
    private readonly video: HTMLVideoElement,
    private readonly listener: PlayerListener,
  ) {
    video.muted = true
    video.addEventListener('error', this.onVideoError)
    this.create()
  }

  feed(frame: VideoFrame): void {
    if (!this.ready) {
      // The muxer needs the media source open; until then only the newest key frame and what follows it count.
      if (frame.keyFrame) this.started = []
      this.started.push(frame)
      return
    }
    const duration = frameDurationMs(frame.captureUs, this.previousCaptureUs)
    this.previousCaptureUs = frame.captureUs
    this.muxer?.feed({ video: frame.data, duration, isLastVideoFrameComplete: true })
    this.watchBuffer()
  }

  destroy(): void {
    this.video.removeEventListener('error', this.onVideoError)
    this.discard()
    this.video.removeAttribute('src')
    this.video.load()
  }

  private create(): void {
    this.muxer = new JMuxer({
      node: this.video,
      mode: 'video',
      live: true,
      flushingTime: 0,
      maxDelay: NO_DELAY_LIMIT_MS,
      clearBuffer: true,
      onReady: (_isReset, source) => {
        this.onReady(source)
      },
      onError: ({ name }) => {
        this.restart(`the media buffer failed: ${name}`)
      },
      onUnsupportedCodec: (codec) => {
        this.listener.onBroken(`the browser cannot decode ${codec}`)
      },
    })
  }

  private onReady(source: MediaSource): void {
    this.ready = true
    this.source = source
    const frames = this.started
    this.started = []
    for (const frame of frames) this.feed(frame)
  }

  private discard(): void {
    this.watched?.removeEventListener('updateend', this.onAppended)
    this.watched = null
    this.source = null
    this.ready = false
    this.started = []
    this.previousCaptureUs = null
    const { muxer } = this
    this.muxer = null
    muxer?.destroy()
  }

  // Begins anew, out of the call by the muxer that found the fault.
  private restart(why: string): void {
    const broken = this.muxer
    if (!broken) return
    queueMicrotask(() => {
      if (this.muxer !== broken) return
      this.discard()
      this.create()
      this.listener.onBroken(why)
    })
  }

  private readonly onVideoError = (): void => {
    if (this.video.error) this.restart(`the picture could not be decoded: ${this.video.error.message}`)
  }

  private watchBuffer(): void {
    const buffer = this.source?.sourceBuffers[0]
    if (!buffer || buffer === this.watched) return
    this.watched = buffer
    buffer.addEventListener('updateend', this.onAppended)
  }

  private readonly onAppended = (): void => {
    // What came while the buffer was busy would otherwise wait for the next picture.
    this.muxer?.releaseBuffer()
    this.keepUp()
  }

  private keepUp(): void {
    const { video } = this
    const { buffered } = video
    if (!buffered.length) return
    const end = buffered.end(buffered.length - 1)
    const start = buffered.start(buffered.length - 1)
    const { rate, jump } = paceFor(end - video.currentTime)
    if (video.currentTime < start) video.currentTime = start
    else if (jump && !video.seeking) video.currentTime = end - LEAST_AHEAD_S
    if (video.playbackRate !== rate) video.playbackRate = rate
    // Refused only while the page is being left.
    if (video.paused) video.play().catch(() => undefined)
  }
}
