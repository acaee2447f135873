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
  openGroupControlWnd: { winData: GroupWindow }
  // Minutes without input after which an open device window rests.
  setStandbyTime: { standbyTime: number }
  // Short code of the language, as in i18n/languages.ts.
  setLanguage: { lang: string }
  // Minutes that are left.
  showRenewWnd: { params: { service_id: string; device_id: string; expire_notice: number } }
  deviceExpiration: { params: { service_id: string; device_id: string } }
  updateNewVersion: { pc_update_info: object }
  // Closes the device windows and loads the page anew in the small sign-in window.
  logout: Record<never, never>
  // Only in a web device window: asks the user where to save a picture.
  getSavePath: Record<never, never>
}

// What a group window shows: a saved group with its name, or a temporary one without.
export interface GroupWindow {
  label: string
  children: {
    service_id: string
    alias_name: string
    pay_mode: string
    // Local times "yyyy-MM-dd hh:mm:ss".
    expire_time: string
    network_time: string
  }[]
}

// A device for a window whose page streams it by itself. Every value is a text.
export interface WebDevice {
  deviceId: string
  serviceId: string
  nodeType: string
  payMode: string
  uuid: string
  // Root of the service's API.
  apiHost: string
  aliasName: string
  // Seconds that the user's time with the device lasts.
  ttl: string
}

export type OperationName = keyof ClientOperations

// Answers of the operations that give one.
export interface ClientAnswers {
  getAppInfo: { appVersion: string }
  // "" when the user cancelled.
  getSavePath: { savePath: string }
}

export type AnsweringOperation = keyof ClientAnswers

// The way to the native client. Calls go out in the order they are made.
export interface ClientBridge {
  // Never throws; a call that cannot be delivered is reported on the console.
  call<Name extends OperationName>(name: Name, params: ClientOperations[Name]): void
  // Opens the device in a window of its own whose page streams it. Never throws, as call().
  openWebDevice(device: WebDevice): void
  // Rejects when no answer comes in time; for what the user is asked there is no such time.
  ask<Name extends AnsweringOperation>(
    name: Name,
    params: ClientOperations[Name],
  ): Promise<ClientAnswers[Name]>
}
