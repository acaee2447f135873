import { createApp, watch, type App } from 'vue'
import type { Router } from 'vue-router'
import AppRoot from '@/AppRoot.vue'
import { createAppRouter, ROUTE } from './router'
import { provideServices, type Services } from './services'

// The whole application around the given services, not yet mounted.
export function createOrvaneApp(services: Services): { app: App; router: Router } {
  const { session, devices, groups, expiry, bridge } = services
  const router = createAppRouter(session)
  const app = createApp(AppRoot)
  app.use(router)
  provideServices(app, services)
  watch(session.current, (current) => {
    const { name } = router.currentRoute.value
    if (current || name === ROUTE.deviceWindow) return
    expiry.stop()
    devices.clear()
    groups.clear()
    void router.replace({ name: ROUTE.signIn })
    // The client goes back to its sign-in window, in which the page begins anew.
    if (name !== ROUTE.signIn) bridge.call('logout', {})
  })
  return { app, router }
}
