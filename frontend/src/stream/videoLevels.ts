import type { VideoLevel } from './wire/stream'

type Row = [width: number, height: number, frameRate: number, minFrameRate: number, bitRate: number]

const H264 = 2

// The level table that the gateway's automatic control and every choice refer to; the same as the native client's.
// Row 0 equals row 1 and stands for "automatic"; the last row is for thumbnails.
const ROWS: Row[] = [
  [720, 1280, 25, 15, 6144],
  [720, 1280, 25, 15, 6144],
  [720, 1280, 25, 15, 4096],
  [576, 1024, 20, 10, 2048],
  [480, 848, 15, 15, 1024],
  [240, 424, 15, 15, 512],
  [144, 218, 5, 1, 256],
]

export const VIDEO_LEVELS: VideoLevel[] = ROWS.map(([width, height, frameRate, minFrameRate, bitRate]) => ({
  codec: H264,
  width,
  height,
  frameRate,
  minFrameRate,
  bitRate,
  quality: 100,
  reserved8: 0,
  reserved9: 0,
  maxQuality: 100,
  minQuality: 50,
}))

// What people choose from: the index is the row, 0 leaves it to the gateway. The first name is translated.
export const QUALITY_NAMES = ['', '720P HQ', '720P', '576P', '480P', '240P'] as const
