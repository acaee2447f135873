import { shallowRef } from 'vue'
import { en } from './en'
import { DEFAULT_LANGUAGE, isRightToLeft, languageOf, type LanguageCode } from './languages'
import { loadTexts, type TextLoader } from './loadTexts'
import { messagesOf, type Messages, type Values } from './messages'
import { namedTexts, unpackTexts } from './texts'

const ENGLISH = namedTexts(en)

// The words for a name, "signIn.busy". A count chooses among the plural forms and is the value "n" too. A name that
// is not known stands for itself.
export type Translate = (name: string, values?: Values | number, count?: number) => string

// The page's texts. English is always there, the others are loaded when they are chosen. A library
// would be a tenth of the whole page, for placeholders and plural forms alone.
export class Texts {
  private readonly known = new Map<LanguageCode, Messages>([
    [DEFAULT_LANGUAGE, messagesOf(ENGLISH, languageOf(DEFAULT_LANGUAGE))],
  ])
  private wanted: LanguageCode = DEFAULT_LANGUAGE
  private readonly shown = shallowRef<LanguageCode>(DEFAULT_LANGUAGE)

  constructor(private readonly load: TextLoader = loadTexts) {}

  get language(): LanguageCode {
    return this.shown.value
  }

  // What is drawn with it is drawn anew when the language changes.
  readonly t: Translate = (name, values = {}, count = 0) => {
    const message = this.known.get(this.shown.value)?.get(name)
    if (!message) return name
    return typeof values === 'number'
      ? message({ n: values }, values)
      : message({ n: count, ...values }, count)
  }

  // Shows the page in a language. Rejects, and changes nothing, when its texts cannot be had; a later choice
  // overtakes an earlier one.
  async use(language: LanguageCode): Promise<void> {
    this.wanted = language
    if (!this.known.has(language)) {
      const texts = unpackTexts(await this.load(language), ENGLISH)
      this.known.set(language, messagesOf(texts, languageOf(language)))
    }
    if (this.wanted !== language) return
    this.shown.value = language
    const root = document.documentElement
    root.lang = languageOf(language).tag
    root.dir = isRightToLeft(language) ? 'rtl' : 'ltr'
  }
}
