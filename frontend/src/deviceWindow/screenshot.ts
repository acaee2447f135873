// The picture that a video element shows now, turned to the left by a quarter turn if it is shown so. Null if there
// is none yet.
export function grabPicture(video: HTMLVideoElement, landscape: boolean): HTMLCanvasElement | null {
  const { videoWidth, videoHeight } = video
  if (!videoWidth || !videoHeight) return null
  const canvas = document.createElement('canvas')
  canvas.width = landscape ? videoHeight : videoWidth
  canvas.height = landscape ? videoWidth : videoHeight
  const context = canvas.getContext('2d')
  if (!context) return null
  if (landscape) {
    context.translate(0, canvas.height)
    context.rotate(-Math.PI / 2)
  }
  context.drawImage(video, 0, 0)
  return canvas
}

export interface PictureFile {
  // Without folders.
  name: string
  type: 'image/png' | 'image/jpeg'
}

// Name and kind of the file for a path that the user chose; PNG unless the path says otherwise.
export function pictureFile(path: string): PictureFile {
  const name = path.slice(Math.max(path.lastIndexOf('/'), path.lastIndexOf('\\')) + 1)
  if (/\.jpe?g$/i.test(name)) return { name, type: 'image/jpeg' }
  return { name: /\.png$/i.test(name) ? name : `${name}.png`, type: 'image/png' }
}

// Hands the picture over as a download, which the client stores where the user wanted it. Rejects if the picture
// cannot be encoded.
export async function downloadPicture(canvas: HTMLCanvasElement, { name, type }: PictureFile): Promise<void> {
  const blob = await new Promise<Blob | null>((resolve) => {
    canvas.toBlob(resolve, type, 0.95)
  })
  if (!blob) throw new Error(`the picture could not be encoded as ${type}`)
  const link = document.createElement('a')
  link.href = URL.createObjectURL(blob)
  link.download = name
  link.click()
  // Not before the download has begun.
  setTimeout(() => {
    URL.revokeObjectURL(link.href)
  }, 60_000)
}
