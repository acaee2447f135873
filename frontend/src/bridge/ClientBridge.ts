// The operations that the front end asks of the native client, and their parameters. Sizes and offsets are whole
// logical pixels: the client reads a fraction as 0.
export interface ClientOperations {
  getAppInfo: Record<never, never>
  setWindowSize: { width: number; height: number }
  moveWindow: { x: number; y: number }
  closeWindow: Record<never, never>
  minimizeWindow: Record<never, never>
  maximizeWindow: Record<never, never>
  restoreWindow: Record<never, never>
  writeLog: { log: string }
  setLoginParams: { 'access-token': string; 'login-id': string }
  openSingleControlWnd: { serviceId: string; aliasName: string }
}

export type OperationName = keyof ClientOperations

// Answers of the operations that give one.
export interface ClientAnswers {
  getAppInfo: { appVersion: string }
}

export type AnsweringOperation = keyof ClientAnswers

// The way to the native client. Calls go out in the order they are made.
export interface ClientBridge {
  // Never throws; a call that cannot be delivered is reported on the console.
  call<Name extends OperationName>(name: Name, params: ClientOperations[Name]): void
  // Rejects when no answer comes in time.
  ask<Name extends AnsweringOperation>(
    name: Name,
    params: ClientOperations[Name],
  ): Promise<ClientAnswers[Name]>
}
