import { createRouter, createWebHashHistory, type Router, type RouterHistory } from 'vue-router'
import type { SessionStore } from '@/session/SessionStore'
import MainView from '@/views/MainView.vue'
import SignInView from '@/views/SignInView.vue'

export const ROUTE = { signIn: 'sign-in', main: 'main' } as const

// The two views. Without a session every way leads to the sign-in view.
export function createAppRouter(
  session: SessionStore,
  history: RouterHistory = createWebHashHistory(),
): Router {
  const router = createRouter({
    history,
    routes: [
      { path: '/sign-in', name: ROUTE.signIn, component: SignInView },
      { path: '/', name: ROUTE.main, component: MainView },
      { path: '/:rest(.*)*', redirect: { name: ROUTE.main } },
    ],
  })
  router.beforeEach((to) => {
    if (!session.current.value && to.name !== ROUTE.signIn) return { name: ROUTE.signIn }
    return true
  })
  return router
}
