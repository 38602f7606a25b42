// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Numbers, dates and times as the language writes them.

import type { CivilDate } from '../state/calendar';
import { localTime } from '../state/zones';
import { fill, languageCode, texts } from '../text/captions';

// English dates have the day first, as those of the scene.
const localeTag = (): string => (languageCode() === 'en' ? 'en-GB' : languageCode());

const formats = new Map<string, Intl.NumberFormat>();

export function formatNumber(value: number, decimals: number): string {
  const key = `${localeTag()} ${decimals}`;
  let format = formats.get(key);
  if (!format) {
    format = new Intl.NumberFormat(localeTag(), {
      minimumFractionDigits: decimals,
      maximumFractionDigits: decimals,
    });
    formats.set(key, format);
  }
  // "-0.0" is nothing that anybody measures.
  return format.format(Number(value.toFixed(decimals)) + 0).replace('-', '−');
}

const two = (value: number): string => String(Math.floor(value)).padStart(2, '0');

// "22:05", or "22:05:31"; a dash for what does not happen.
export function formatTime(julian: number, zone: string, hasSeconds = false): string {
  if (Number.isNaN(julian)) return '–';
  // Minutes are rounded, seconds are those that have begun.
  const { hour, minute, second } = localTime(hasSeconds ? julian : julian + 30 / 86400, zone);
  return `${two(hour)}:${two(minute)}${hasSeconds ? `:${two(second)}` : ''}`;
}

export const formatYear = (year: number): string =>
  year > 0 ? String(year) : fill(texts().beforeChrist, 1 - year);

// "15 January 2026". The browser writes day and month of a leap year; the year is ours, for it may be before
// Christ.
export function formatDate(date: CivilDate): string {
  const format = new Intl.DateTimeFormat(localeTag(), {
    day: 'numeric',
    month: 'short',
    year: 'numeric',
    timeZone: 'UTC',
  });
  const parts = format.formatToParts(Date.UTC(2000, date.month - 1, date.day));
  return parts.map(({ type, value }) => (type === 'year' ? formatYear(date.year) : value)).join('');
}

export const monthName = (month: number): string =>
  new Intl.DateTimeFormat(localeTag(), { month: 'long', timeZone: 'UTC' }).format(
    Date.UTC(2000, month - 1, 1),
  );

// From Monday on.
export function weekdayNames(): { short: string; long: string }[] {
  const name = (day: number, weekday: 'short' | 'long'): string =>
    new Intl.DateTimeFormat(localeTag(), { weekday, timeZone: 'UTC' }).format(Date.UTC(2001, 0, day));
  return [1, 2, 3, 4, 5, 6, 7].map((day) => ({ short: name(day, 'short'), long: name(day, 'long') }));
}

const kPoints = {
  en: ['N', 'NE', 'E', 'SE', 'S', 'SW', 'W', 'NW'],
  de: ['N', 'NO', 'O', 'SO', 'S', 'SW', 'W', 'NW'],
  ru: ['С', 'СВ', 'В', 'ЮВ', 'Ю', 'ЮЗ', 'З', 'СЗ'],
};

// Of an azimuth from north over east.
export function compassPoint(azimuth: number): string {
  const points = kPoints[languageCode() as keyof typeof kPoints] ?? kPoints.en;
  return points[((Math.round(azimuth / 45) % 8) + 8) % 8];
}
