import { createRouter, createWebHashHistory, type Router, type RouterHistory } from 'vue-router'
import type { SessionStore } from '@/session/SessionStore'
import DevicesView from '@/views/DevicesView.vue'
import DeviceWindowView from '@/views/DeviceWindowView.vue'
import GroupsView from '@/views/GroupsView.vue'
import MainView from '@/views/MainView.vue'
import SettingsView from '@/views/SettingsView.vue'
import SignInView from '@/views/SignInView.vue'

export const ROUTE = {
  signIn: 'sign-in',
  devices: 'devices',
  groups: 'groups',
  settings: 'settings',
  deviceWindow: 'device-window',
} as const

// The path is a contract: the client opens web device windows with it.
export const DEVICE_WINDOW_PATH = '/deviceWin'

// The views. Without a session every way leads to the sign-in view, but for the device window, which says itself
// what it lacks.
export function createAppRouter(
  session: SessionStore,
  history: RouterHistory = createWebHashHistory(),
): Router {
  const router = createRouter({
    history,
    routes: [
      { path: '/sign-in', name: ROUTE.signIn, component: SignInView },
      {
        path: '/',
        component: MainView,
        children: [
          { path: '', name: ROUTE.devices, component: DevicesView },
          { path: 'groups', name: ROUTE.groups, component: GroupsView },
          { path: 'settings', name: ROUTE.settings, component: SettingsView },
        ],
      },
      { path: DEVICE_WINDOW_PATH, name: ROUTE.deviceWindow, component: DeviceWindowView },
      { path: '/:rest(.*)*', redirect: { name: ROUTE.devices } },
    ],
  })
  router.beforeEach((to) => {
    const open = to.name === ROUTE.signIn || to.name === ROUTE.deviceWindow
    return session.current.value || open ? true : { name: ROUTE.signIn }
  })
  return router
}
