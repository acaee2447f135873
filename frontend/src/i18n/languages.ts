// The languages of the page. The codes are the client's, odd ones included; `tag` is the one of the web standards.
// `plurals` are the forms of whole numbers, in the order in which the texts give them.
const ONE_OTHER = ['one', 'other'] as const
const SLAVIC = ['one', 'few', 'many'] as const
const SINGLE = ['other'] as const

interface LanguageEntry {
  code: string
  // In the language itself.
  name: string
  tag: string
  plurals: readonly Intl.LDMLPluralRule[]
}

export const LANGUAGES = [
  { code: 'en', name: 'English', tag: 'en', plurals: ONE_OTHER },
  { code: 'cn', name: '简体中文', tag: 'zh-CN', plurals: SINGLE },
  { code: 'cht', name: '繁體中文', tag: 'zh-TW', plurals: SINGLE },
  { code: 'jp', name: '日本語', tag: 'ja', plurals: SINGLE },
  { code: 'ko', name: '한국어', tag: 'ko', plurals: SINGLE },
  { code: 'th', name: 'ไทย', tag: 'th', plurals: SINGLE },
  { code: 'vi', name: 'Tiếng Việt', tag: 'vi', plurals: SINGLE },
  { code: 'ind', name: 'Bahasa Indonesia', tag: 'id', plurals: SINGLE },
  { code: 'de', name: 'Deutsch', tag: 'de', plurals: ONE_OTHER },
  { code: 'es', name: 'Español', tag: 'es', plurals: ONE_OTHER },
  { code: 'fr', name: 'Français', tag: 'fr', plurals: ONE_OTHER },
  { code: 'it', name: 'Italiano', tag: 'it', plurals: ONE_OTHER },
  { code: 'pt', name: 'Português', tag: 'pt', plurals: ONE_OTHER },
  { code: 'pl', name: 'Polski', tag: 'pl', plurals: SLAVIC },
  { code: 'ru', name: 'Русский', tag: 'ru', plurals: SLAVIC },
  { code: 'tr', name: 'Türkçe', tag: 'tr', plurals: ONE_OTHER },
  { code: 'ar', name: 'العربية', tag: 'ar', plurals: ['zero', 'one', 'two', 'few', 'many', 'other'] },
  { code: 'hi_IN', name: 'हिन्दी', tag: 'hi', plurals: ONE_OTHER },
  { code: 'bn', name: 'বাংলা', tag: 'bn', plurals: ONE_OTHER },
] as const satisfies readonly LanguageEntry[]

export type Language = (typeof LANGUAGES)[number]
export type LanguageCode = Language['code']

export const DEFAULT_LANGUAGE: LanguageCode = 'en'

export function findLanguage(code: string): Language | undefined {
  return LANGUAGES.find((language) => language.code === code)
}

export function languageOf(code: LanguageCode): Language {
  const language = findLanguage(code)
  if (!language) throw new Error(`no language "${code}"`)
  return language
}

export function isRightToLeft(code: LanguageCode): boolean {
  return code === 'ar'
}

// Chooses the form for a count among `formCount` ones. A text may begin with one more form, for none at all.
export function pluralForm({ tag, plurals }: LanguageEntry): (count: number, formCount: number) => number {
  const rules = new Intl.PluralRules(tag)
  return (count, formCount) => {
    const hasNone = formCount > plurals.length
    if (hasNone && count === 0) return 0
    const index = plurals.indexOf(rules.select(count))
    return (hasNone ? 1 : 0) + (index === -1 ? plurals.length - 1 : index)
  }
}
