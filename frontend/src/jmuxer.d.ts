// The H.264 to MSE muxer, which comes without types. Only what the player uses.
declare module 'jmuxer/src/jmuxer.js' {
  export interface JMuxerOptions {
    node: HTMLVideoElement
    mode: 'video'
    // An endless timeline, for which Chromium plays with low delay.
    live?: boolean
    // 0: appends as soon as something is fed.
    flushingTime: number
    // How far playing may fall behind before the muxer jumps, in milliseconds.
    maxDelay: number
    clearBuffer: boolean
    onReady?: (isReset: boolean, source: MediaSource) => void
    onError?: (error: { name: string }) => void
    onUnsupportedCodec?: (codec: string) => void
  }

  export default class JMuxer {
    constructor(options: JMuxerOptions)
    // The duration is in whole milliseconds.
    feed(data: { video: Uint8Array; duration: number; isLastVideoFrameComplete: boolean }): void
    // Appends what waits while the source buffer was busy.
    releaseBuffer(): void
    destroy(): void
  }
}
