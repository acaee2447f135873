// Reading what the service sent.

export function isObject(value: unknown): value is Record<string, unknown> {
  return typeof value === 'object' && value !== null && !Array.isArray(value)
}

// "" for anything that is no text.
export function textOf(value: unknown): string {
  return typeof value === 'string' ? value : ''
}
