import type {
  AnsweringOperation,
  ClientAnswers,
  ClientBridge,
  ClientOperations,
  OperationName,
} from './ClientBridge'

export interface BridgeCall {
  name: OperationName
  params: object
}

// Stands in for the client when the page runs in a plain browser: there is no window to move, so calls are only
// noted, on the console and in a list that tests read.
export class BrowserClientBridge implements ClientBridge {
  readonly calls: BridgeCall[] = []
  private static readonly MAX_CALLS = 1000

  call<Name extends OperationName>(name: Name, params: ClientOperations[Name]): void {
    this.calls.push({ name, params })
    if (this.calls.length > BrowserClientBridge.MAX_CALLS) this.calls.shift()
    console.debug('client bridge:', name, params)
  }

  ask<Name extends AnsweringOperation>(
    name: Name,
    params: ClientOperations[Name],
  ): Promise<ClientAnswers[Name]> {
    this.call(name, params)
    const answers: ClientAnswers = { getAppInfo: { appVersion: 'dev' } }
    return Promise.resolve(answers[name])
  }
}
