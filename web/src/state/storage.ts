// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What the browser keeps between visits, as one entry of its storage. A browser that keeps nothing, or an
// entry that is damaged, gives what is empty: the page then begins with the defaults.

import type { Style } from './address';
import { kStyles } from './address';

export interface Place {
  latitude: number; // degrees, north and east positive
  longitude: number;
  name: string; // "": none
  zone: string; // of the IANA database
}

export interface Kept {
  language?: string;
  style?: Style;
  place?: Place;
  changes?: string[]; // of settings, as the scene takes them
  options?: Record<string, string>; // of the scene, by name
  favourites?: string; // the text of a favourites file
}

const kEntry = 'sky';

type Keeper = Pick<Storage, 'getItem' | 'setItem'>;

const isText = (value: unknown): value is string => typeof value === 'string';
const isIn = (value: unknown, most: number): value is number =>
  typeof value === 'number' && Math.abs(value) <= most;

function takePlace(value: unknown): Place | undefined {
  const place = (value ?? {}) as Partial<Place>;
  return isIn(place.latitude, 90) && isIn(place.longitude, 360) && isText(place.name) && isText(place.zone)
    ? { latitude: place.latitude, longitude: place.longitude, name: place.name, zone: place.zone }
    : undefined;
}

function takeTexts(value: unknown): Record<string, string> | undefined {
  if (typeof value !== 'object' || value === null) return undefined;
  return Object.fromEntries(
    Object.entries(value).filter((entry): entry is [string, string] => isText(entry[1])),
  );
}

// Each member by itself: one that is none takes nothing from the others.
export function readKept(keeper: Keeper | null): Kept {
  let entry: Record<string, unknown>;
  try {
    entry = JSON.parse(keeper?.getItem(kEntry) ?? '{}') as Record<string, unknown>;
  } catch {
    return {};
  }
  if (typeof entry !== 'object' || entry === null) return {};
  const kept: Kept = {};
  const style = kStyles.find((name) => name === entry['style']);
  const place = takePlace(entry['place']),
    options = takeTexts(entry['options']);
  if (isText(entry['language'])) kept.language = entry['language'];
  if (style) kept.style = style;
  if (place) kept.place = place;
  if (Array.isArray(entry['changes'])) kept.changes = entry['changes'].filter(isText);
  if (options) kept.options = options;
  if (isText(entry['favourites'])) kept.favourites = entry['favourites'];
  return kept;
}

// Changes what is kept by the members of `news`; one that is undefined goes. False where the browser refuses.
export function keep(keeper: Keeper | null, news: Kept): boolean {
  try {
    keeper?.setItem(kEntry, JSON.stringify({ ...readKept(keeper), ...news }));
    return keeper !== null;
  } catch {
    return false;
  }
}

// The browser's storage, null where it is shut.
export function findStorage(): Storage | null {
  try {
    return window.localStorage;
  } catch {
    return null;
  }
}
