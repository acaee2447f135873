import { DEFAULT_API_BASE_URL } from '@/api/ApiClient'
import { createOrvaneApp } from '@/app/createOrvaneApp'
import { createServices } from '@/app/createServices'
import { installPageFunctions } from '@/app/pageFunctions'
import { reportErrors } from '@/app/reportErrors'
import { DEVICE_WINDOW_PATH } from '@/app/router'
import { createClientBridge } from '@/bridge/createClientBridge'
import { apiRootOf, hashQuery, webDeviceFrom } from '@/deviceWindow/webDevice'
import '@/styles/base.css'

const given = window.orvane
const { hash } = window.location
const isDeviceWindow = hash.startsWith(`#${DEVICE_WINDOW_PATH}`)
const apiBaseUrl = given?.apiBaseUrl ?? DEFAULT_API_BASE_URL

const bridge = createClientBridge()
const services = createServices({
  apiBaseUrl: isDeviceWindow ? apiRootOf(webDeviceFrom(hashQuery(hash)), apiBaseUrl) : apiBaseUrl,
  bridge,
  storage: window.localStorage,
  tabStorage: window.sessionStorage,
})
const { session, settings } = services

if (isDeviceWindow) {
  const { accessToken = '', loginId = '' } = given ?? {}
  const main = accessToken ? { accessToken, loginId, userName: '' } : session.remembered()
  if (main) session.borrow(main)
} else {
  installPageFunctions(services)
}

const { app } = createOrvaneApp(services)
reportErrors(app, bridge)
// Not before its texts are there, so that no English flashes up.
void settings.restore(isDeviceWindow ? given?.language : undefined).then(() => app.mount('#app'))
