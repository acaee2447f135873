import { pluralForm, type Language } from './languages'
import type { NamedTexts } from './texts'

export type Values = Readonly<Record<string, string | number>>
export type Message = (values: Values, count: number) => string
export type Messages = ReadonlyMap<string, Message>

// A text knows placeholders, "{name}", and plural forms, separated by "|", and nothing else.
export function messageOf(text: string, choose: ReturnType<typeof pluralForm>): Message {
  const forms = text.split('|').map((form) => form.trim())
  return (values, count) => {
    const form = forms.length > 1 ? (forms[choose(count, forms.length)] ?? '') : text
    return form.replace(/\{(\w+)\}/g, (_placeholder, name: string) => String(values[name] ?? ''))
  }
}

export function messagesOf(texts: NamedTexts, language: Language): Messages {
  const choose = pluralForm(language)
  return new Map(Object.entries(texts).map(([name, text]) => [name, messageOf(text, choose)]))
}
