export interface TextTree {
  [name: string]: string | TextTree
}

// A language's texts by their names, "signIn.busy".
export type NamedTexts = Record<string, string>

export function namedTexts(tree: TextTree, path = ''): NamedTexts {
  const texts: NamedTexts = {}
  for (const [name, value] of Object.entries(tree)) {
    if (typeof value === 'string') texts[path + name] = value
    else Object.assign(texts, namedTexts(value, `${path}${name}.`))
  }
  return texts
}

// A language's texts in the order of the English ones, one per line: how they travel to the page. With their names
// and in quotes they would be half as long again.
export type PackedTexts = string

// Throws when the language has not exactly the English texts, or a text has lines; `source` says whose they are.
export function packTexts(texts: NamedTexts, english: NamedTexts, source: string): PackedTexts {
  const refuse = (what: string, names: string[]) => {
    if (names.length) throw new Error(`${source}: ${what}: ${names.join(', ')}`)
  }
  const names = Object.keys(english)
  const missing = names.filter((name) => !(name in texts))
  refuse('texts are missing', missing)
  const unknown = Object.keys(texts).filter((name) => !(name in english))
  refuse('texts that English does not have', unknown)
  const withLines = names.filter((name) => texts[name]?.includes('\n'))
  refuse('texts of more than one line', withLines)
  return names.map((name) => texts[name]).join('\n')
}

// Throws when the texts were packed for another set of English ones.
export function unpackTexts(packed: PackedTexts, english: NamedTexts): NamedTexts {
  const names = Object.keys(english)
  const texts = packed.split('\n')
  if (texts.length !== names.length) throw new Error(`${texts.length} texts instead of ${names.length}`)
  return Object.fromEntries(names.map((name, index) => [name, texts[index] ?? '']))
}
