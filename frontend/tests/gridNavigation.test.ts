import { describe, expect, it } from 'vitest'
import { navigateGrid } from '@/util/gridNavigation'

// 0 1 2
// 3 4 5
// 6 7
describe('navigateGrid in eight cells and three columns', () => {
  it.each([
    ['ArrowRight', 0, 1],
    ['ArrowRight', 2, 3],
    ['ArrowRight', 7, null],
    ['ArrowLeft', 3, 2],
    ['ArrowLeft', 0, null],
    ['ArrowDown', 1, 4],
    ['ArrowDown', 5, 7],
    ['ArrowDown', 6, null],
    ['ArrowUp', 7, 4],
    ['ArrowUp', 2, null],
    ['Home', 5, 0],
    ['Home', 0, null],
    ['End', 1, 7],
    ['a', 4, null],
  ])('%s from %d leads to %s', (key, from, to) => {
    expect(navigateGrid(key, from, 8, 3)).toBe(to)
  })

  it('goes nowhere without cells', () => {
    for (const key of ['ArrowRight', 'ArrowDown', 'Home', 'End'])
      expect(navigateGrid(key, 0, 0, 1)).toBeNull()
  })
})
