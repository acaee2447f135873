import { existsSync, readdirSync, readFileSync } from 'node:fs'
import { join } from 'node:path'
import type { Plugin } from 'vite'

// The folder of the package that a module comes from, if it comes from one.
function packageFolder(moduleId: string): string | undefined {
  return /^\0?(.*\/node_modules\/(?:@[^/]+\/)?[^/]+)\//.exec(moduleId)?.[1]
}

function licenceOf(folder: string): string {
  const about = JSON.parse(readFileSync(join(folder, 'package.json'), 'utf8')) as {
    name: string
    version: string
    license?: string
  }
  const file = readdirSync(folder).find((name) => /^(licen[cs]e|copying)/i.test(name))
  const text = file ? readFileSync(join(folder, file), 'utf8').trim() : `Licence: ${about.license ?? '?'}`
  return `${about.name} ${about.version}\n\n${text}\n`
}

// Writes licences.txt: the notices of every package of which something is in the page, as their licences ask for.
export function licences(): Plugin {
  return {
    name: 'orvane-licences',
    generateBundle() {
      const folders = new Set<string>()
      for (const id of this.getModuleIds()) {
        const folder = packageFolder(id)
        if (folder && existsSync(join(folder, 'package.json'))) folders.add(folder)
      }
      const source = [...folders]
        .sort()
        .map(licenceOf)
        .join(`\n${'-'.repeat(80)}\n\n`)
      this.emitFile({ type: 'asset', fileName: 'licences.txt', source })
    },
  }
}
