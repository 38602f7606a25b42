// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import type { CivilTime } from '../state/calendar';
import { isDate } from '../state/calendar';
import { julianFromLocal, localTime } from '../state/zones';
import type { Texts } from '../text/en';

export interface Step {
  caption: keyof Texts;
  days?: number;
  months?: number; // by the calendar, at the same time of the clocks
}

const kSiderealDay = 0.99726957; // mean sidereal day in days (Explanatory Supplement, 3.5)

export const kSteps: readonly Step[] = [
  { caption: 'minute', days: 1 / 1440 },
  { caption: 'minutes10', days: 10 / 1440 },
  { caption: 'hour', days: 1 / 24 },
  { caption: 'dayStep', days: 1 },
  { caption: 'siderealDay', days: kSiderealDay },
  { caption: 'week', days: 7 },
  { caption: 'month', months: 1 },
  { caption: 'year', months: 12 },
];

// A moment so many steps on. Days and weeks keep the time of the clocks, also where these are put forward
// between.
export function takeStep(moment: number, step: Step, count: number, zone: string): number {
  if (step.months === undefined && (step.days ?? 0) < 0.999) return moment + (step.days ?? 0) * count;
  if (step.caption === 'siderealDay') return moment + kSiderealDay * count;
  const civil = localTime(moment, zone);
  if (step.months === undefined) {
    const shifted = localTime(moment + (step.days ?? 0) * count, zone);
    return julianFromLocal(
      { ...nearestDay(civil, shifted), hour: civil.hour, minute: civil.minute, second: civil.second },
      zone,
    );
  }
  const index = civil.year * 12 + civil.month - 1 + step.months * count;
  const to = { ...civil, year: Math.floor(index / 12), month: (((index % 12) + 12) % 12) + 1 };
  while (!isDate(to)) --to.day;
  return julianFromLocal(to, zone);
}

// An hour more or less on the clocks may have carried the date over midnight: half a day brings it back.
function nearestDay(from: CivilTime, to: CivilTime): Pick<CivilTime, 'year' | 'month' | 'day'> {
  const late = to.hour - from.hour;
  return Math.abs(late) <= 12 ? to : localTimeAside(to, late > 0 ? 1 : -1);
}

function localTimeAside(to: CivilTime, days: number): CivilTime {
  return localTime(julianFromLocal({ ...to, hour: 12 }, 'UTC') + days, 'UTC');
}
