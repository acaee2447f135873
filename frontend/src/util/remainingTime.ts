const MINUTE = 60
const HOUR = 60 * MINUTE
const DAY = 24 * HOUR
// From here on, hours no longer matter.
const WHOLE_DAYS_FROM = 7 * DAY

// A message key of the group "remaining" and its values.
export interface RemainingTime {
  key: 'over' | 'underMinute' | 'minutes' | 'hours' | 'hoursMinutes' | 'days' | 'daysHours'
  days: number
  hours: number
  minutes: number
}

// What to say about a remaining time in seconds: the two largest units that matter, rounded down, so that nobody is
// promised more than there is.
export function remainingTime(seconds: number): RemainingTime {
  const days = Math.floor(seconds / DAY)
  const hours = Math.floor((seconds % DAY) / HOUR)
  const minutes = Math.floor((seconds % HOUR) / MINUTE)
  const as = (key: RemainingTime['key']): RemainingTime => ({ key, days, hours, minutes })
  if (!(seconds > 0)) return { key: 'over', days: 0, hours: 0, minutes: 0 }
  if (seconds < MINUTE) return as('underMinute')
  if (seconds < HOUR) return as('minutes')
  if (seconds < DAY) return as(minutes ? 'hoursMinutes' : 'hours')
  if (seconds < WHOLE_DAYS_FROM) return as(hours ? 'daysHours' : 'days')
  return as('days')
}
