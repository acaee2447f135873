import { createI18n } from 'vue-i18n'
import { en } from './en'

export function createTexts() {
  return createI18n({ legacy: false, locale: 'en', fallbackLocale: 'en', messages: { en } })
}
