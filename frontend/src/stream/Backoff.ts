const FIRST_DELAY_MS = 250
const LONGEST_DELAY_MS = 8000
// A connection that lasted this long was good: the next first try is made at once.
export const GOOD_CONNECTION_MS = 2000

// How long to wait before the next try to connect: not at all after a good connection, then twice as long each
// time, each shortened by up to a half by chance, so that many clients do not come back in step.
export class Backoff {
  private failures = 0

  constructor(private readonly random: () => number) {}

  // `lastedMs`: how long the login of the connection that ended was good, 0 if there was none. `atOnce`: whether a
  // try without waiting is sensible at all.
  nextDelay(lastedMs: number, atOnce: boolean): number {
    if (lastedMs >= GOOD_CONNECTION_MS) {
      this.failures = 0
      if (atOnce) return 0
    }
    const longest = Math.min(FIRST_DELAY_MS * 2 ** this.failures, LONGEST_DELAY_MS)
    ++this.failures
    return longest * (1 - this.random() / 2)
  }
}
