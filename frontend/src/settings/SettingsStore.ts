import { shallowRef } from 'vue'
import type { ClientBridge } from '@/bridge/ClientBridge'
import type { Texts } from '@/i18n'
import { DEFAULT_LANGUAGE, findLanguage, type LanguageCode } from '@/i18n/languages'
import type { SafeStorage } from '@/util/SafeStorage'

// The second name is a contract: the client reads it from the page's local storage when it opens a device.
const STORAGE_KEYS = { language: 'language', standbyTime: 'standbyTime' } as const

export const STANDBY_MINUTES = [1, 3, 5, 10, 30] as const
const DEFAULT_STANDBY_MINUTES = 5

// What the user may choose, kept for the next start. The client is told of it.
export class SettingsStore {
  readonly language = shallowRef<LanguageCode>(DEFAULT_LANGUAGE)
  readonly standbyMinutes = shallowRef<number>(DEFAULT_STANDBY_MINUTES)

  constructor(
    private readonly storage: SafeStorage,
    private readonly bridge: ClientBridge,
    private readonly texts: Texts,
  ) {
    const minutes = Number(storage.read(STORAGE_KEYS.standbyTime))
    if (Number.isInteger(minutes) && minutes > 0) this.standbyMinutes.value = minutes
  }

  // Takes up the remembered language, or the one that the client gives, and tells the client of it. English stays
  // when its texts cannot be had.
  async restore(given?: string): Promise<void> {
    const language = findLanguage(given ?? this.storage.read(STORAGE_KEYS.language))?.code
    if (!language) return
    try {
      await this.texts.use(language)
    } catch (error) {
      console.error('The remembered language is not available:', error)
      return
    }
    this.language.value = language
    if (!given) this.bridge.call('setLanguage', { lang: language })
  }

  // Rejects, and changes nothing, when the language's texts cannot be had.
  async chooseLanguage(language: LanguageCode): Promise<void> {
    await this.texts.use(language)
    this.language.value = language
    this.storage.write(STORAGE_KEYS.language, language)
    this.bridge.call('setLanguage', { lang: language })
  }

  chooseStandby(minutes: number): void {
    this.standbyMinutes.value = minutes
    this.storage.write(STORAGE_KEYS.standbyTime, String(minutes))
    this.bridge.call('setStandbyTime', { standbyTime: minutes })
  }
}
