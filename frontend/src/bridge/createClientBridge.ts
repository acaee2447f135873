import { BrowserClientBridge } from './BrowserClientBridge'
import type { ClientBridge } from './ClientBridge'
import { QtClientBridge } from './QtClientBridge'

// The bridge for the place where the page runs: the client's web view offers a web channel, a browser does not.
export function createClientBridge(page: Pick<Window, 'qt'> = window): ClientBridge {
  const transport = page.qt?.webChannelTransport
  return transport ? new QtClientBridge(transport) : new BrowserClientBridge()
}
