import { fileURLToPath, URL } from 'node:url'
import vue from '@vitejs/plugin-vue'
import type { Plugin } from 'vite'
import { defineConfig } from 'vitest/config'

// Chromium loads neither module scripts nor anything marked "crossorigin" from file:///. The build emits one
// classic script; this makes the page ask for it as such.
function classicScript(): Plugin {
  return {
    name: 'orvane-classic-script',
    apply: 'build',
    enforce: 'post',
    transformIndexHtml: (html) =>
      html
        .replace(/<script type="module" crossorigin/g, '<script defer')
        .replace(/<link rel="stylesheet" crossorigin/g, '<link rel="stylesheet"'),
  }
}

export default defineConfig({
  base: './',
  plugins: [vue(), classicScript()],
  resolve: { alias: { '@': fileURLToPath(new URL('./src', import.meta.url)) } },
  define: {
    __VUE_OPTIONS_API__: false,
    __VUE_PROD_DEVTOOLS__: false,
    __VUE_I18N_FULL_INSTALL__: false,
    __VUE_I18N_LEGACY_API__: false,
  },
  build: {
    // The web engine of Qt 5.15 is Chromium 87.
    target: 'chrome87',
    cssTarget: 'chrome87',
    assetsInlineLimit: 64 * 1024,
    modulePreload: false,
    // The CMake target builds into the client's folder, outside this one.
    emptyOutDir: true,
    rollupOptions: { output: { format: 'iife', inlineDynamicImports: true } },
  },
  test: {
    environment: 'jsdom',
    include: ['tests/**/*.test.ts'],
    setupFiles: ['tests/support/setup.ts'],
    fakeTimers: { toFake: ['setTimeout', 'clearTimeout'] },
    restoreMocks: true,
    unstubGlobals: true,
  },
})
