import type { LanguageCode } from './languages'
import type { PackedTexts } from './texts'

export type TextLoader = (code: LanguageCode) => Promise<PackedTexts>

type Receive = (code: string, texts: PackedTexts) => void

// Fetches a language's texts: a script beside the page that calls the global function "orvaneTexts". Unlike
// modules and data, scripts load from file:/// too.
export const loadTexts: TextLoader = (code) =>
  new Promise((resolve, reject) => {
    const globals = window as unknown as Record<string, Receive>
    globals.orvaneTexts = (loadedCode, texts) => {
      loaded.set(loadedCode, texts)
    }
    const script = document.createElement('script')
    script.src = `./locales/${code}.js`
    script.onload = () => {
      script.remove()
      const texts = loaded.get(code)
      if (texts) resolve(texts)
      else reject(new Error(`${script.src} has no texts`))
    }
    script.onerror = () => {
      script.remove()
      reject(new Error(`${script.src} could not be loaded`))
    }
    document.head.append(script)
  })

const loaded = new Map<string, PackedTexts>()
