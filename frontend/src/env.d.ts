/// <reference types="vite/client" />

// What the client puts into every page before its first script runs.
interface OrvaneSettings {
  readonly apiBaseUrl: string
}

interface Window {
  readonly orvane?: OrvaneSettings
  readonly qt?: { readonly webChannelTransport?: import('qwebchannel').WebChannelTransport }
}
