import { fileURLToPath, URL } from 'node:url'
import { readdirSync, readFileSync } from 'node:fs'
import vue from '@vitejs/plugin-vue'
import type { Plugin } from 'vite'
import { defineConfig } from 'vitest/config'
import { en } from './src/i18n/en'
import { namedTexts, packTexts, type TextTree } from './src/i18n/texts'
import { licences } from './licences'

const path = (name: string) => fileURLToPath(new URL(name, import.meta.url))
const LOCALES = path('./src/i18n/locales')

// A page from file:/// may load scripts but neither modules nor data. So each language but English is a small
// classic script of its own, locales/<code>.js, that hands its texts to the page when it is asked for.
function localeScripts(): Plugin {
  const english = namedTexts(en)
  const codes = readdirSync(LOCALES).map((name) => name.replace('.json', ''))
  const script = (code: string) => {
    const file = `${LOCALES}/${code}.json`
    const tree = JSON.parse(readFileSync(file, 'utf8')) as TextTree
    const texts = packTexts(namedTexts(tree), english, file)
    return `orvaneTexts(${JSON.stringify(code)},\`${texts.replace(/[`\\]|\$\{/g, '\\$&')}\`)`
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
    alias: [
      { find: '@', replacement: path('./src') },
      // Of the muxer the page takes the source, and of that only what it uses.
      { find: /^stream$/, replacement: path('./src/stream/noDuplex.ts') },
      { find: /^\.\.\/remuxer\/(aac|h265)\.js$/, replacement: path('./src/stream/noRemuxer.ts') },
    ],
  },
  define: {
    __VUE_OPTIONS_API__: false,
    __VUE_PROD_DEVTOOLS__: false,
  },
  build: {
    // The web engine of Qt 5.15 is Chromium 87.
    target: 'chrome87',
    cssTarget: 'chrome87',
    assetsInlineLimit: 64 * 1024,
    // Slower than Vite's own, but what it makes is smaller.
    minify: 'terser',
    terserOptions: { ecma: 2020, compress: { passes: 3 }, format: { comments: false } },
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
