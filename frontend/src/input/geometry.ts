export interface Point {
  x: number
  y: number
}

export interface Size {
  width: number
  height: number
}

// A place on the shown picture: the offset from its upper left corner and the size it is shown with.
export interface Spot extends Point {
  shown: Size
}

export function isLandscape(rotation: number): boolean {
  return rotation % 2 === 1
}

function clamp(value: number, max: number): number {
  return Math.min(Math.max(value, 0), max)
}

// The pixel of the remote screen, in portrait, under a place on the picture. In landscape the picture is shown
// turned by a quarter turn to the left. Places beside the picture count as its edge.
export function remotePixel({ x, y, shown }: Spot, remote: Size, landscape: boolean): Point {
  const across = clamp(x / shown.width, 1)
  const down = clamp(y / shown.height, 1)
  const [fractionX, fractionY] = landscape ? [1 - down, across] : [across, down]
  return {
    x: clamp(Math.trunc(remote.width * fractionX), remote.width - 1),
    y: clamp(Math.trunc(remote.height * fractionY), remote.height - 1),
  }
}

// The largest size of the remote screen's shape, turned if need be, within the given area; whole pixels, so that
// no line of the background is left beside a picture that fits but for a fraction.
export function fittingSize(area: Size, remote: Size, landscape: boolean): Size {
  const [width, height] = landscape ? [remote.height, remote.width] : [remote.width, remote.height]
  const scale = Math.min(area.width / width, area.height / height)
  return { width: Math.round(width * scale), height: Math.round(height * scale) }
}
