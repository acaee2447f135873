import { DEFAULT_API_BASE_URL } from '@/api/ApiClient'
import { createOrvaneApp } from '@/app/createOrvaneApp'
import { createServices } from '@/app/createServices'
import { reportErrors } from '@/app/reportErrors'
import { createClientBridge } from '@/bridge/createClientBridge'
import '@/styles/base.css'

const bridge = createClientBridge()
const services = createServices({
  apiBaseUrl: window.orvane?.apiBaseUrl ?? DEFAULT_API_BASE_URL,
  bridge,
  storage: window.localStorage,
  language: () => 'en',
})
const { app } = createOrvaneApp(services)
reportErrors(app, bridge)
app.mount('#app')
