// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Days and dates as the library counts them: astronomical years (0 is 1 BC), the Julian calendar before 15
// October 1582.

export interface CivilDate {
  year: number;
  month: number; // 1 to 12
  day: number; // 1 to 31
}

export interface CivilTime extends CivilDate {
  hour: number;
  minute: number;
  second: number; // with its fraction
}

const kMsPerDay = 86400000;
const kUnixEpochJulian = 2440587.5; // 1 January 1970, 0 h Universal Time
const kUnixEpochDay = 2440588; // the day number of its noon
const kFirstGregorianDay = 2299161; // 15 October 1582

export const kLeastYear = -9999;
export const kMostYear = 9999;

export const julianFromUnix = (ms: number): number => ms / kMsPerDay + kUnixEpochJulian;

// In whole milliseconds: a Julian date in a double has no more than 0.04 of them.
export const unixFromJulian = (julian: number): number => Math.round((julian - kUnixEpochJulian) * kMsPerDay);

// Day number of the noon of a date: years are counted from March, so that the leap day is the last of a year.
export function dayNumber({ year, month, day }: CivilDate): number {
  const late = month > 2;
  const y = (late ? year : year - 1) + 4800;
  const m = late ? month - 3 : month + 9;
  const julian = day + Math.floor((153 * m + 2) / 5) + 365 * y + Math.floor(y / 4) - 32083;
  const isGregorian = year > 1582 || (year === 1582 && (month > 10 || (month === 10 && day >= 15)));
  return isGregorian ? julian + 38 - Math.floor(y / 100) + Math.floor(y / 400) : julian;
}

// The other way round, for day numbers of any sign.
export function dateOfDay(number: number): CivilDate {
  let shifted = number + 32082;
  if (number >= kFirstGregorianDay) {
    const century = Math.floor((4 * (number + 32044) + 3) / 146097);
    shifted = number + 32044 - Math.floor((146097 * century) / 4) + 36525 * century;
  }
  const year = Math.floor((4 * shifted + 3) / 1461);
  const dayOfYear = shifted - Math.floor((1461 * year) / 4);
  const month = Math.floor((5 * dayOfYear + 2) / 153);
  return {
    day: dayOfYear - Math.floor((153 * month + 2) / 5) + 1,
    month: month < 10 ? month + 3 : month - 9,
    year: year - 4800 + (month < 10 ? 0 : 1),
  };
}

// A clock's reading as milliseconds from its own 1 January 1970, 0 h.
export function clockFromCivil(civil: CivilTime): number {
  const day = (dayNumber(civil) - kUnixEpochDay) * kMsPerDay;
  return day + Math.round((civil.hour * 3600 + civil.minute * 60 + civil.second) * 1000);
}

export function civilFromClock(clock: number): CivilTime {
  const day = Math.floor(clock / kMsPerDay);
  const seconds = (clock - day * kMsPerDay) / 1000;
  return {
    ...dateOfDay(day + kUnixEpochDay),
    hour: Math.floor(seconds / 3600),
    minute: Math.floor(seconds / 60) % 60,
    second: seconds % 60,
  };
}

// Whether the calendar has that date: none of the ten days that 1582 left out, no 29 February of a common
// year.
export function isDate(date: CivilDate): boolean {
  const back = dateOfDay(dayNumber(date));
  return back.year === date.year && back.month === date.month && back.day === date.day;
}

// The day of the week, 0 for Monday.
export const weekday = (date: CivilDate): number => ((dayNumber(date) % 7) + 7) % 7;

export function daysInMonth(year: number, month: number): number {
  const next = month === 12 ? { year: year + 1, month: 1, day: 1 } : { year, month: month + 1, day: 1 };
  return dayNumber(next) - dayNumber({ year, month, day: 1 });
}
