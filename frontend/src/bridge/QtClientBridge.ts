import { QWebChannel, type WebChannelTransport } from 'qwebchannel'
import type {
  AnsweringOperation,
  ClientAnswers,
  ClientBridge,
  ClientOperations,
  OperationName,
  WebDevice,
} from './ClientBridge'

export const ANSWER_TIMEOUT_MS = 5000

// Waits for the user, however long that takes.
const UNHURRIED: AnsweringOperation = 'getSavePath'

// The object that the client publishes on the web channel, and its slots. The second one only the main window has.
interface ClientApi {
  callJsApi(callText: string): unknown
  onOpenWebSingleController?(device: WebDevice): unknown
}

function isClientApi(object: unknown): object is ClientApi {
  return typeof (object as Partial<ClientApi> | undefined)?.callJsApi === 'function'
}

let lastCallbackNumber = 0

// Speaks with the client over Qt's web channel. Each call is one JSON text; an answer arrives as a call of the
// global function that the text names. Calls made before the channel is up wait for it.
export class QtClientBridge implements ClientBridge {
  private readonly clientApi: Promise<ClientApi>

  constructor(transport: WebChannelTransport) {
    this.clientApi = new Promise((resolve, reject) => {
      new QWebChannel(transport, (channel) => {
        const object = channel.objects.clientApi
        if (isClientApi(object)) resolve(object)
        else reject(new Error('the client publishes no "clientApi" object'))
      })
    })
    this.clientApi.catch((error: unknown) => {
      console.error('The bridge to the client is not usable:', error)
    })
  }

  call<Name extends OperationName>(name: Name, params: ClientOperations[Name]): void {
    this.send(name, { jsApiName: name, ...params })
  }

  openWebDevice(device: WebDevice): void {
    this.clientApi
      .then((clientApi) => {
        if (clientApi.onOpenWebSingleController) clientApi.onOpenWebSingleController(device)
        else console.error('the client has no web device windows')
      })
      .catch(() => {
        console.error('a web device window could not be asked for')
      })
  }

  ask<Name extends AnsweringOperation>(
    name: Name,
    params: ClientOperations[Name],
  ): Promise<ClientAnswers[Name]> {
    const callback = `orvaneAnswer${++lastCallbackNumber}`
    const globals = window as unknown as Record<string, unknown>
    return new Promise((resolve, reject) => {
      const giveUp = () => {
        // An answer that comes after all must find a function, or the client's script would fail.
        globals[callback] = () => Reflect.deleteProperty(globals, callback)
        reject(new Error(`the client did not answer "${name}" within ${ANSWER_TIMEOUT_MS} ms`))
      }
      const timer = name === UNHURRIED ? undefined : setTimeout(giveUp, ANSWER_TIMEOUT_MS)
      globals[callback] = (answer: ClientAnswers[Name]) => {
        clearTimeout(timer)
        Reflect.deleteProperty(globals, callback)
        resolve(answer)
      }
      this.send(name, { jsApiName: name, callback, ...params })
    })
  }

  private send(name: string, callObject: Record<string, unknown>): void {
    const callText = JSON.stringify(callObject)
    this.clientApi
      .then((clientApi) => {
        clientApi.callJsApi(callText)
      })
      .catch(() => {
        console.error(`"${name}" could not be delivered to the client`)
      })
  }
}
