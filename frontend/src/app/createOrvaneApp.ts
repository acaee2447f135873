import { createApp, watch, type App } from 'vue'
import type { Router } from 'vue-router'
import AppRoot from '@/AppRoot.vue'
import { createTexts } from '@/i18n'
import { createAppRouter, ROUTE } from './router'
import { provideServices, type Services } from './services'

// The whole application around the given services, not yet mounted.
export function createOrvaneApp(services: Services): { app: App; router: Router } {
  const router = createAppRouter(services.session)
  const app = createApp(AppRoot)
  app.use(createTexts()).use(router)
  provideServices(app, services)
  watch(services.session.current, (session) => {
    if (session) return
    services.devices.clear()
    void router.replace({ name: ROUTE.signIn })
  })
  return { app, router }
}
