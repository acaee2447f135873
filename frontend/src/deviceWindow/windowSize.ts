import type { Size } from '@/input/geometry'

export const TITLE_HEIGHT = 40
export const STRIP_WIDTH = 44
// The picture's width in a window that is as large as it should be.
const PORTRAIT_WIDTH = 346
const LANDSCAPE_WIDTH = 800

// The size that the device window should have for a remote screen (given in portrait), logical pixels.
export function windowSizeFor(remote: Size, landscape: boolean): Size {
  const [width, height] = landscape ? [remote.height, remote.width] : [remote.width, remote.height]
  const shownWidth = landscape ? LANDSCAPE_WIDTH : PORTRAIT_WIDTH
  return {
    width: shownWidth + STRIP_WIDTH,
    height: Math.round((shownWidth * height) / width) + TITLE_HEIGHT,
  }
}
