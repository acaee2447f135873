import type {
  AnsweringOperation,
  ClientAnswers,
  ClientBridge,
  ClientOperations,
  OperationName,
  WebDevice,
} from './ClientBridge'

export interface BridgeCall {
  name: OperationName | 'openWebDevice'
  params: object
}

// Stands in for the client when the page runs in a plain browser: there is no window to move, so calls are only
// noted, on the console and in a list that tests read. A web device window is a window of the browser.
export class BrowserClientBridge implements ClientBridge {
  readonly calls: BridgeCall[] = []
  private static readonly MAX_CALLS = 1000

  call<Name extends OperationName>(name: Name, params: ClientOperations[Name]): void {
    this.note({ name, params })
  }

  openWebDevice(device: WebDevice): void {
    this.note({ name: 'openWebDevice', params: device })
    const query = new URLSearchParams({ ...device }).toString()
    window.open(`${window.location.pathname}#/deviceWin/?${query}`, device.serviceId, 'width=390,height=680')
  }

  ask<Name extends AnsweringOperation>(
    name: Name,
    params: ClientOperations[Name],
  ): Promise<ClientAnswers[Name]> {
    this.call(name, params)
    const answers: ClientAnswers = {
      getAppInfo: { appVersion: 'dev' },
      getSavePath: { savePath: 'Screen capture.png' },
    }
    return Promise.resolve(answers[name])
  }

  private note(call: BridgeCall): void {
    this.calls.push(call)
    if (this.calls.length > BrowserClientBridge.MAX_CALLS) this.calls.shift()
    console.debug('client bridge:', call.name, call.params)
  }
}
