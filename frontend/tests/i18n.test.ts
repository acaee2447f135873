import { readdirSync } from 'node:fs'
import { describe, expect, it, vi } from 'vitest'
import { Texts } from '@/i18n'
import { en } from '@/i18n/en'
import { findLanguage, LANGUAGES, pluralForm } from '@/i18n/languages'
import { loadTexts } from '@/i18n/loadTexts'
import { messageOf } from '@/i18n/messages'
import { namedTexts, packTexts, unpackTexts } from '@/i18n/texts'
import { loadTestTexts, textTree } from './support/mountApp'

async function textsOf(code: string): Promise<Map<string, string>> {
  return new Map(Object.entries(namedTexts(code === 'en' ? en : await textTree(code))))
}

function placeholders(text: string): string[] {
  return [...new Set(text.match(/\{\w+\}/g) ?? [])].sort()
}

const englishTexts = namedTexts(en)
const english = new Map(Object.entries(englishTexts))
const others = LANGUAGES.filter(({ code }) => code !== 'en')

describe('the languages', () => {
  it("are the client's nineteen", () => {
    expect(LANGUAGES.map(({ code }) => code).sort()).toEqual(
      'ar bn cht cn de en es fr hi_IN ind it jp ko pl pt ru th tr vi'.split(' '),
    )
    expect(readdirSync('src/i18n/locales').sort()).toEqual(others.map(({ code }) => `${code}.json`).sort())
  })

  it.each(others)('$code has every text', async ({ code }) => {
    const texts = await textsOf(code)
    expect([...texts.keys()]).toEqual([...english.keys()])
    for (const [key, text] of texts) expect(text.trim(), key).not.toBe('')
  })

  it.each(others)('$code has the same placeholders, but for counts in words', async ({ code }) => {
    const texts = await textsOf(code)
    const withoutCount = (text: string) => placeholders(text).filter((name) => name !== '{n}')
    for (const [key, text] of texts) {
      const wanted = english.get(key)!
      expect(withoutCount(text), key).toEqual(withoutCount(wanted))
      if (wanted.includes('{n}')) expect(text, key).toContain('{n}')
    }
  })

  it.each(LANGUAGES)('$code has as many plural forms as it needs, or one more for none', async (language) => {
    const texts = await textsOf(language.code)
    for (const [key, wanted] of english) {
      const forms = texts.get(key)!.split('|').length
      if (!wanted.includes('|')) expect(forms, key).toBe(1)
      else expect([language.plurals.length, language.plurals.length + 1], key).toContain(forms)
    }
  })

  it.each(others)('$code is really another language', async ({ code }) => {
    const texts = await textsOf(code)
    const same = [...texts].filter(([key, text]) => text === english.get(key))
    expect(same.length).toBeLessThan(16)
  })
})

describe('a message', () => {
  const shown = (text: string, values: Record<string, string | number> = {}, count = 0) =>
    messageOf(text, pluralForm(findLanguage('de')!))(values, count)

  it('holds its values, each as often as it is named', () => {
    expect(shown('{hours} h {minutes} min, {hours} h', { hours: 2, minutes: 5 })).toBe('2 h 5 min, 2 h')
  })

  it('shows a value as it is, whatever stands in it', () => {
    const name = '{other} | $& @:x'
    expect(shown('Restart {name}?', { name, other: 'wrong' })).toBe(`Restart ${name}?`)
  })

  it('shows nothing for a value that is not given', () => {
    expect(shown('a{none}b')).toBe('ab')
  })

  it('is one of its forms, without the blanks around it', () => {
    expect(shown('No devices | 1 device |  {n} devices ', {}, 1)).toBe('1 device')
    expect(shown(' alone ')).toBe(' alone ')
  })

  it.each(LANGUAGES)('of $code has no other signs than placeholders and forms', async ({ code }) => {
    for (const [name, text] of await textsOf(code))
      expect(text.replace(/\{\w+\}/g, ''), name).not.toMatch(/[{}\r\n]/)
  })
})

describe('packed texts', () => {
  it.each(others)('of $code become the same again', async ({ code }) => {
    const texts = namedTexts(await textTree(code))
    const again = unpackTexts(packTexts(texts, englishTexts, code), englishTexts)
    expect(again).toEqual(texts)
    expect(Object.keys(again)).toEqual([...english.keys()])
  })

  it('follow the order of the English ones', () => {
    expect(packTexts({ b: 'zwei', a: 'eins' }, { a: 'one', b: 'two' }, 'de')).toBe('eins\nzwei')
  })

  it.each([
    [{ a: 'eins' }, 'de: texts are missing: b'],
    [{ a: 'eins', b: 'zwei', c: 'drei' }, 'de: texts that English does not have: c'],
    [{ a: 'eins\n', b: 'zwei' }, 'de: texts of more than one line: a'],
  ])('are refused when they are %j', (texts, why) => {
    expect(() => packTexts(texts as Record<string, string>, { a: 'one', b: 'two' }, 'de')).toThrow(why)
  })
})

describe('counting', () => {
  it.each([
    ['en', [0, 1, 2, 5], [1, 0, 1, 1]],
    ['ru', [0, 1, 2, 5, 11, 21, 22], [2, 0, 1, 2, 2, 0, 1]],
    ['pl', [1, 3, 5, 12, 21, 22], [0, 1, 2, 2, 2, 1]],
    ['ar', [0, 1, 2, 3, 11, 100], [0, 1, 2, 3, 4, 5]],
    ['jp', [0, 1, 2], [0, 0, 0]],
    ['fr', [0, 1, 2], [0, 0, 1]],
  ])('%s chooses the form', (code, counts, forms) => {
    const language = findLanguage(code)!
    const choose = pluralForm(language)
    expect(counts.map((count) => choose(count, language.plurals.length))).toEqual(forms)
  })

  it('has a form of its own for none where there is one more', () => {
    const choose = pluralForm(findLanguage('de')!)
    expect([0, 1, 2].map((count) => choose(count, 3))).toEqual([0, 1, 2])
  })

  it('says it in words', async () => {
    const texts = new Texts(loadTestTexts)
    await texts.use('ru')
    const { t } = texts
    expect([0, 1, 3, 5].map((count) => t('main.count', count))).toEqual([
      'Нет устройств',
      '1 устройство',
      '3 устройства',
      '5 устройств',
    ])
  })
})

describe('choosing a language', () => {
  it('writes from right to left in Arabic only', async () => {
    const texts = new Texts(loadTestTexts)
    await texts.use('ar')
    expect(document.documentElement.dir).toBe('rtl')
    expect(document.documentElement.lang).toBe('ar')
    await texts.use('de')
    expect(document.documentElement.dir).toBe('ltr')
    expect(document.documentElement.lang).toBe('de')
    await texts.use('cht')
    expect(document.documentElement.lang).toBe('zh-TW')
  })

  it('changes nothing when the texts cannot be had', async () => {
    const texts = new Texts(() => Promise.reject(new Error('gone')))
    await texts.use('en')
    await expect(texts.use('de')).rejects.toThrow('gone')
    expect(texts.language).toBe('en')
  })

  it('changes nothing when the texts are those of another version', async () => {
    const texts = new Texts(() => Promise.resolve('eins\nzwei'))
    await expect(texts.use('de')).rejects.toThrow(`2 texts instead of ${english.size}`)
    expect(texts.language).toBe('en')
    expect(texts.t('common.cancel')).toBe('Cancel')
  })

  it('goes by the last choice, however long the texts take', async () => {
    let finish: () => void = () => undefined
    const slow = new Promise<void>((resolve) => {
      finish = resolve
    })
    const texts = new Texts(async (code) => {
      if (code === 'de') await slow
      return loadTestTexts(code)
    })
    const first = texts.use('de')
    await texts.use('fr')
    finish()
    await first
    expect(texts.language).toBe('fr')
  })
})

describe('the script of a language', () => {
  function script(): HTMLScriptElement {
    return document.head.querySelector('script')!
  }

  it('stands beside the page and hands its texts over', async () => {
    const loading = loadTexts('pl')
    expect(script().getAttribute('src')).toBe('./locales/pl.js')
    ;(window as unknown as { orvaneTexts: (code: string, texts: string) => void }).orvaneTexts('pl', 'a\nb')
    script().onload!(new Event('load'))
    await expect(loading).resolves.toBe('a\nb')
    expect(document.head.querySelector('script')).toBeNull()
  })

  it('may be missing or empty', async () => {
    const missing = loadTexts('it')
    script().dispatchEvent(new Event('error'))
    await expect(missing).rejects.toThrow('locales/it.js could not be loaded')
    const empty = loadTexts('it')
    script().onload!(new Event('load'))
    await expect(empty).rejects.toThrow('locales/it.js has no texts')
    vi.restoreAllMocks()
  })
})
