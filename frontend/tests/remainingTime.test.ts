import { describe, expect, it } from 'vitest'
import { Texts } from '@/i18n'
import { remainingTime } from '@/util/remainingTime'

const HOUR = 3600
const DAY = 24 * HOUR

function say(seconds: number): string {
  const { t } = new Texts()
  const { key, ...values } = remainingTime(seconds)
  return t(`remaining.${key}`, values, values.days)
}

describe('remainingTime', () => {
  it.each([
    [-5, 'Time is over'],
    [0, 'Time is over'],
    [Number.NaN, 'Time is over'],
    [0.5, 'Less than a minute left'],
    [59.9, 'Less than a minute left'],
    [60, '1 min left'],
    [HOUR - 1, '59 min left'],
    [HOUR, '1 h left'],
    [HOUR + 60, '1 h 1 min left'],
    [DAY - 1, '23 h 59 min left'],
    [DAY, '1 day left'],
    [DAY + HOUR, '1 day 1 h left'],
    [2 * DAY + 7.5 * HOUR, '2 days 7 h left'],
    [7 * DAY - 1, '6 days 23 h left'],
    [7 * DAY + 5 * HOUR, '7 days left'],
    [6_143_400, '71 days left'],
  ])('says of %d seconds "%s"', (seconds, text) => {
    expect(say(seconds)).toBe(text)
  })
})
