// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// A view as the fragment of an address and back,
// "at=52.52,13.41&place=Berlin&zone=Europe/Berlin&look=180,35&zoom=1". Whoever opens such a link sees the
// same sky. A fragment is taken wholly or not at all.

import { kLeastYear, kMostYear, julianFromUnix, unixFromJulian } from './calendar';
import { isZone } from './zones';

export const kStyles = ['screen', 'print', 'night', 'photo'] as const;
export type Style = (typeof kStyles)[number];

// Angles in degrees, azimuth from north over east. What a member is left out of, a link leaves to its reader.
export interface SharedView {
  latitude: number;
  longitude: number;
  place?: string; // name of the place
  zone?: string; // of the IANA database
  moment?: number; // Julian date of Universal Time; left out: the time of the clock
  azimuth: number;
  altitude: number;
  zoom: number;
  style?: Style;
  language?: string;
  object?: { kind: number; number: number }; // whose panel is open
}

const kMiddleToCorner = 37; // degrees at zoom 1
const kMiddleToCornerPixels = 2000; // of a large screen

// As many decimals of degrees as keep the rounding below half a pixel.
const decimalsAt = (zoom: number): number =>
  Math.max(2, Math.ceil(Math.log10((kMiddleToCornerPixels * zoom) / kMiddleToCorner)));

const round = (value: number, decimals: number): string => String(Number(value.toFixed(decimals)));

// "2026-01-15T22:00Z": of the Gregorian calendar carried back, as this form has it everywhere.
function formatMoment(julian: number): string {
  const text = new Date(unixFromJulian(julian)).toISOString();
  return text.replace(/\.000Z$/, 'Z').replace(/:00Z$/, 'Z');
}

function parseMoment(text: string): number | null {
  if (!/^([+-]\d{6}|\d{4})-\d\d-\d\dT\d\d:\d\d(:\d\d(\.\d{1,3})?)?Z$/.test(text)) return null;
  const moment = new Date(text);
  const year = moment.getUTCFullYear();
  return year >= kLeastYear && year <= kMostYear ? julianFromUnix(moment.getTime()) : null;
}

// Four characters, a point, the number: "star.2491".
const codeText = (kind: number): string =>
  String.fromCharCode((kind >>> 24) & 255, (kind >>> 16) & 255, (kind >>> 8) & 255, kind & 255);

function kindOfCode(code: string): number {
  let kind = 0;
  for (let i = 0; i < 4; ++i) kind = (kind << 8) | (code.charCodeAt(i) & 255);
  return kind;
}

function parseObject(text: string): SharedView['object'] | null {
  const match = /^([!-~]{4})\.(-?\d{1,10})$/.exec(text);
  if (!match?.[1]) return null;
  const number = Number(match[2]);
  return number === (number | 0) ? { kind: kindOfCode(match[1]), number } : null;
}

// A comma and a slash may stand in a fragment as they are.
const encode = (text: string): string =>
  encodeURIComponent(text).replace(/%2C/g, ',').replace(/%2F/g, '/').replace(/%3A/g, ':');

function decode(text: string): string | null {
  try {
    return decodeURIComponent(text.replace(/\+/g, '%2B'));
  } catch {
    return null;
  }
}

// `rest`: pairs of another fragment that are none of ours, kept as they are.
export function formatAddress(view: SharedView, rest: readonly string[] = []): string {
  const decimals = decimalsAt(view.zoom);
  const pairs = [`at=${round(view.latitude, decimals + 1)},${round(view.longitude, decimals + 1)}`];
  const add = (key: string, value: string | undefined): void => {
    if (value) pairs.push(`${key}=${encode(value)}`);
  };
  add('place', view.place);
  add('zone', view.zone);
  add('time', view.moment === undefined ? undefined : formatMoment(view.moment));
  pairs.push(`look=${round(view.azimuth, decimals)},${round(view.altitude, decimals)}`);
  pairs.push(`zoom=${String(Number(view.zoom.toPrecision(6)))}`);
  add('style', view.style === 'screen' ? undefined : view.style);
  add('language', view.language);
  add('object', view.object ? `${codeText(view.object.kind)}.${view.object.number}` : undefined);
  return [...pairs, ...rest].join('&');
}

const number = (text: string | undefined, least: number, most: number): number | null => {
  if (text === undefined || !/^-?\d+(\.\d+)?$/.test(text)) return null;
  const value = Number(text);
  return value >= least && value <= most ? value : null;
};

type Range = readonly [least: number, most: number];

function pair(text: string | undefined, first: Range, second: Range): [number, number] | null {
  const parts = (text ?? '').split(',');
  const a = number(parts[0], ...first),
    b = number(parts[1], ...second);
  return parts.length === 2 && a !== null && b !== null ? [a, b] : null;
}

const kKeys = new Set(['at', 'place', 'zone', 'time', 'look', 'zoom', 'style', 'language', 'object']);

// What of a fragment is none of ours.
export const foreignPairs = (fragment: string): string[] =>
  fragment.split('&').filter((text) => text !== '' && !kKeys.has(text.split('=', 1)[0] ?? ''));

// Null for a fragment that is no view, or has a value that is none.
export function parseAddress(fragment: string): SharedView | null {
  const values = new Map<string, string>();
  for (const text of fragment.split('&')) {
    const [key = '', ...rest] = text.split('=');
    const value = decode(rest.join('='));
    if (!kKeys.has(key)) continue;
    if (value === null || values.has(key)) return null;
    values.set(key, value);
  }
  return makeView(values);
}

function makeView(values: ReadonlyMap<string, string>): SharedView | null {
  const at = pair(values.get('at'), [-90, 90], [-360, 360]);
  const look = pair(values.get('look'), [0, 360], [-90, 90]);
  const zoom = number(values.get('zoom'), 0.25, 10000);
  if (!at || !look || zoom === null) return null;
  const view: SharedView = { latitude: at[0], longitude: at[1], azimuth: look[0], altitude: look[1], zoom };
  const place = values.get('place');
  if (place !== undefined) view.place = place;
  return takeZone(values.get('zone'), view) &&
    takeMoment(values.get('time'), view) &&
    takeStyle(values.get('style'), view) &&
    takeLanguage(values.get('language'), view) &&
    takeObject(values.get('object'), view)
    ? view
    : null;
}

function takeZone(zone: string | undefined, view: SharedView): boolean {
  if (zone === undefined) return true;
  view.zone = zone;
  return isZone(zone);
}

function takeMoment(text: string | undefined, view: SharedView): boolean {
  if (text === undefined) return true;
  const moment = parseMoment(text);
  if (moment === null) return false;
  view.moment = moment;
  return true;
}

function takeStyle(text: string | undefined, view: SharedView): boolean {
  if (text === undefined) return true;
  const style = kStyles.find((name) => name === text);
  if (!style) return false;
  view.style = style;
  return true;
}

function takeLanguage(language: string | undefined, view: SharedView): boolean {
  if (language === undefined) return true;
  view.language = language;
  return /^[a-z]{2,8}$/.test(language);
}

function takeObject(text: string | undefined, view: SharedView): boolean {
  if (text === undefined) return true;
  const object = parseObject(text);
  if (!object) return false;
  view.object = object;
  return true;
}
