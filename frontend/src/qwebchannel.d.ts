// Qt's web channel client, which comes without types. Only what the bridge uses.
declare module 'qwebchannel' {
  export interface WebChannelTransport {
    send(text: string): void
    onmessage?: ((event: { data: string }) => void) | null
  }

  export class QWebChannel {
    constructor(transport: WebChannelTransport, onReady: (channel: QWebChannel) => void)
    readonly objects: Record<string, unknown>
  }
}
