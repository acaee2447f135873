// The index that a key leads to in a grid of `count` cells filled row by row with `columns` columns, or null when
// the key does not move: it is no navigation key, or there is nothing in that direction.
export function navigateGrid(key: string, index: number, count: number, columns: number): number | null {
  const target = targetOf(key, index, count, columns)
  return target === null || target === index || target < 0 || target >= count ? null : target
}

function targetOf(key: string, index: number, count: number, columns: number): number | null {
  switch (key) {
    case 'ArrowLeft':
      return index - 1
    case 'ArrowRight':
      return index + 1
    case 'ArrowUp':
      return index - columns
    case 'ArrowDown':
      return below(index, count, columns)
    case 'Home':
      return 0
    case 'End':
      return count - 1
    default:
      return null
  }
}

// The last row may be short: above its gap, "down" leads to the last cell.
function below(index: number, count: number, columns: number): number {
  const onLastRow = Math.floor(index / columns) === Math.floor((count - 1) / columns)
  return onLastRow ? index : Math.min(index + columns, count - 1)
}
