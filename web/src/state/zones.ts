// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Clocks of the zones of the IANA database, as the browser knows them: daylight saving and the history of a
// zone come with it. Moments are Julian dates of Universal Time.

import type { CivilTime } from './calendar';
import { civilFromClock, clockFromCivil, julianFromUnix, unixFromJulian } from './calendar';

const kUniversal = 'UTC';

const formats = new Map<string, Intl.DateTimeFormat | null>();

function findFormat(zone: string): Intl.DateTimeFormat | null {
  const known = formats.get(zone);
  if (known !== undefined) return known;
  let made: Intl.DateTimeFormat | null = null;
  try {
    made = new Intl.DateTimeFormat('en-US', {
      timeZone: zone,
      hourCycle: 'h23',
      era: 'short',
      year: 'numeric',
      month: 'numeric',
      day: 'numeric',
      hour: 'numeric',
      minute: 'numeric',
      second: 'numeric',
    });
  } catch {
    // A zone that the browser does not know has the clocks of Universal Time.
  }
  formats.set(zone, made);
  return made;
}

export const isZone = (zone: string): boolean => findFormat(zone) !== null;

// Local time minus Universal Time in milliseconds, at a moment in milliseconds from 1970. 0 in an unknown
// zone.
export function zoneOffset(zone: string, unix: number): number {
  if (zone === kUniversal) return 0;
  const format = findFormat(zone);
  if (!format) return 0;
  const whole = Math.floor(unix / 1000) * 1000;
  const part: Record<string, string> = {};
  for (const { type, value } of format.formatToParts(whole)) part[type] = value;
  const year = Number(part['year']);
  // The parts are those of the Gregorian calendar, carried back without end; so is Date.
  const clock = new Date(0);
  clock.setUTCFullYear(
    part['era']?.startsWith('B') ? 1 - year : year,
    Number(part['month']) - 1,
    Number(part['day']),
  );
  clock.setUTCHours(Number(part['hour']), Number(part['minute']), Number(part['second']));
  return clock.getTime() - whole;
}

export function localTime(julian: number, zone: string): CivilTime {
  const unix = unixFromJulian(julian);
  return civilFromClock(unix + zoneOffset(zone, unix));
}

// The moment when the clocks of a zone show that. Of two the earlier; a time that the clocks skip is as much
// later as they are put forward.
export function julianFromLocal(civil: CivilTime, zone: string): number {
  const clock = clockFromCivil(civil);
  // Offsets lie within a day of each other, so those of the days around are all that can hold.
  const before = zoneOffset(zone, clock - 86400000);
  const after = zoneOffset(zone, clock + 86400000);
  const holds = (offset: number): boolean => zoneOffset(zone, clock - offset) === offset;
  const candidates = [before, after].filter(holds).sort((a, b) => b - a);
  return julianFromUnix(clock - (candidates[0] ?? before));
}

// "UT+01:00", with seconds where a zone had them.
export function offsetText(zone: string, julian: number): string {
  const offset = zoneOffset(zone, unixFromJulian(julian)) / 1000;
  const size = Math.abs(offset);
  const parts = [Math.floor(size / 3600), Math.floor(size / 60) % 60];
  if (size % 60) parts.push(size % 60);
  return `UT${offset < 0 ? '−' : '+'}${parts.map((n) => String(n).padStart(2, '0')).join(':')}`;
}

// The browser's own zone.
export const ownZone = (): string => new Intl.DateTimeFormat().resolvedOptions().timeZone || kUniversal;
