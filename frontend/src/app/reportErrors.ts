import type { App } from 'vue'
import type { ClientBridge } from '@/bridge/ClientBridge'

function describe(error: unknown): string {
  return error instanceof Error ? (error.stack ?? String(error)) : String(error)
}

// Errors that nobody handled go to the client's log, where support finds them, and to the console.
export function reportErrors(app: App, bridge: ClientBridge): void {
  const report = (where: string, error: unknown) => {
    console.error(where, error)
    bridge.call('writeLog', { log: `${where}: ${describe(error)}` })
  }
  app.config.errorHandler = (error, _instance, info) => {
    report(`error in the page (${info})`, error)
  }
  window.addEventListener('error', (event) => {
    report('error in the page', event.error ?? event.message)
  })
  window.addEventListener('unhandledrejection', (event) => {
    report('unhandled rejection in the page', event.reason)
  })
}
