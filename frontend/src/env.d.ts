/// <reference types="vite/client" />

// What the client puts into every page before its first script runs.
interface OrvaneSettings {
  readonly apiBaseUrl: string
  // In a web device window, which has a storage of its own: who is signed in, and the language.
  readonly accessToken?: string
  readonly loginId?: string
  readonly language?: string
}

interface Window {
  readonly orvane?: OrvaneSettings
  readonly qt?: { readonly webChannelTransport?: import('qwebchannel').WebChannelTransport }
  clusterOpened?: (open: number) => void
  getList?: () => void
}
