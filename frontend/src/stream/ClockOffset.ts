const MAX_SAMPLES = 16

interface Sample {
  roundTripUs: number
  offsetUs: number
}

// The gateway's clock as seen from here. A pong is taken to have been written half-way between ping and pong; of
// the newest samples the one with the shortest round trip counts. All times are microseconds.
export class ClockOffset {
  private readonly samples: Sample[] = []

  addPong(sentUs: number, receivedUs: number, repliedUs: number): void {
    const roundTripUs = receivedUs - sentUs
    if (roundTripUs < 0) return
    this.samples.push({ roundTripUs, offsetUs: repliedUs - (sentUs + receivedUs) / 2 })
    if (this.samples.length > MAX_SAMPLES) this.samples.shift()
  }

  // Gateway clock minus own clock, or null before the first pong.
  offsetUs(): number | null {
    if (!this.samples.length) return null
    return this.samples.reduce((best, sample) => (sample.roundTripUs < best.roundTripUs ? sample : best))
      .offsetUs
  }

  clear(): void {
    this.samples.length = 0
  }
}
