import { fileURLToPath, URL } from 'node:url'
import { readdirSync, readFileSync } from 'node:fs'
import vue from '@vitejs/plugin-vue'
import type { Plugin } from 'vite'
import { defineConfig } from 'vitest/config'
import { licences } from './licences'

const LOCALES = fileURLToPath(new URL('./src/i18n/locales', import.meta.url))

// A page from file:/// may load scripts but neither modules nor data. So each language but English is a small
// classic script of its own, locales/<code>.js, that hands its texts to the page when it is asked for.
function localeScripts(): Plugin {
  const codes = readdirSync(LOCALES).map((name) => name.replace('.json', ''))
  const script = (code: string) => {
    const texts: unknown = JSON.parse(readFileSync(`${LOCALES}/${code}.json`, 'utf8'))
    return `orvaneTexts(${JSON.stringify(code)},${JSON.stringify(texts)})`
  }
  return {
    name: 'orvane-locale-scripts',
    generateBundle() {
      for (const code of codes)
        this.emitFile({ type: 'asset', fileName: `locales/${code}.js`, source: script(code) })
    },
    configureServer(server) {
      server.middlewares.use((request, response, next) => {
        const code = /^\/locales\/(\w+)\.js/.exec(request.url ?? '')?.[1]
        if (!code || !codes.includes(code)) {
          next()
          return
        }
        response.setHeader('Content-Type', 'text/javascript; charset=utf-8')
        response.end(script(code))
      })
    },
  }
}

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
  plugins: [vue(), classicScript(), localeScripts(), licences()],
  resolve: {
    alias: {
      '@': fileURLToPath(new URL('./src', import.meta.url)),
      // Its source is a good deal smaller than its bundle.
      stream: fileURLToPath(new URL('./src/stream/noDuplex.ts', import.meta.url)),
    },
  },
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
    rollupOptions: {
      // Names without hashes: the client embeds the files too, and must know them.
      output: { format: 'iife', inlineDynamicImports: true, entryFileNames: 'assets/index.js' },
    },
  },
  test: {
    environment: 'jsdom',
    include: ['tests/**/*.test.ts'],
    setupFiles: ['tests/support/setup.ts'],
    fakeTimers: { toFake: ['setTimeout', 'clearTimeout', 'setInterval', 'clearInterval'] },
    // Its source is written for bundlers.
    server: { deps: { inline: ['jmuxer'] } },
    restoreMocks: true,
    unstubGlobals: true,
  },
})
