import { createI18n } from 'vue-i18n'
import { en, type Messages } from './en'
import { DEFAULT_LANGUAGE, isRightToLeft, LANGUAGES, pluralForm, type LanguageCode } from './languages'
import { loadTexts, type TextLoader } from './loadTexts'

function createPlugin() {
  const messages: Record<string, Messages> = { en }
  return createI18n({
    legacy: false,
    locale: DEFAULT_LANGUAGE as string,
    fallbackLocale: DEFAULT_LANGUAGE as string,
    messages,
    pluralRules: Object.fromEntries(LANGUAGES.map((language) => [language.code, pluralForm(language)])),
  })
}

// The page's texts. English is always there, the others are loaded when they are chosen.
export class Texts {
  readonly plugin = createPlugin()
  private wanted: LanguageCode = DEFAULT_LANGUAGE

  constructor(private readonly load: TextLoader = loadTexts) {}

  // Shows the page in a language. Rejects, and changes nothing, when its texts cannot be had; a later choice
  // overtakes an earlier one.
  async use(language: LanguageCode): Promise<void> {
    this.wanted = language
    const { global } = this.plugin
    if (!global.availableLocales.includes(language)) {
      const texts = await this.load(language)
      global.setLocaleMessage(language, texts)
    }
    if (this.wanted !== language) return
    global.locale.value = language
    const root = document.documentElement
    root.lang = LANGUAGES.find(({ code }) => code === language)?.tag ?? language
    root.dir = isRightToLeft(language) ? 'rtl' : 'ltr'
  }
}
