// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What the panels ask the scene, beside what drawing asks (messages.ts): the same rules. Moments are Julian
// dates of Universal Time; not a number: does not happen. The members are those of scene_objects_c.h,
// scene_almanac_c.h and scene_state_c.h, which say more of each.

import type { SkyObject, View } from './messages';

export interface Suggestion {
  object: SkyObject;
  name: string; // the one of its names that begins so
  title: string; // its best known name in the language of the texts
  kind: string; // in words of the language, "" where there is no word
}

// Numbers of scene_objects_c.h.
export const FactKind = { name: 0, otherNames: 1, kind: 2, rise: 13, transit: 14, set: 15 } as const;

export interface Fact {
  kind: number;
  caption: string; // "": the text says it all
  text: string;
}

export const ReasonKind = { drawn: 0, hidden: 1, label: 2, zoom: 3 } as const;

export interface Reason {
  kind: number;
  text: string;
  fix: string; // the change of a setting that is rid of it, "" for none
}

export interface ObjectDay {
  stays: number; // -1 below the horizon all day, 1 above it, 0 neither
  rise: number;
  transit: number;
  set: number;
  riseAzimuth: number;
  transitAltitude: number;
  setAzimuth: number;
}

export interface Spot {
  isGround: boolean;
  rightAscension: number;
  declination: number;
  azimuth: number;
  altitude: number;
  constellation: string;
}

export interface Night {
  darkness: number; // 0 the Sun does not set, 1 sets, 2 to 4 civil, nautical, astronomical
  begin: number;
  end: number;
  middle: number;
  sunset: number;
  sunrise: number;
  civilDusk: number;
  civilDawn: number;
  nauticalDusk: number;
  nauticalDawn: number;
  astronomicalDusk: number;
  astronomicalDawn: number;
  moonrise: number;
  moonset: number;
  moonPhaseAngle: number;
  moonLit: number; // 0 to 1
  moonWaxes: boolean;
  moonPhase: string; // in words
}

export interface City {
  latitude: number;
  longitude: number;
  height: number;
  population: number;
  name: string;
  country: string;
  countryName: string;
  zone: string;
}

export const FieldType = { toggle: 0, sum: 1, whole: 2, real: 3, choice: 4, range: 5, other: 6 } as const;

// A setting with all that its control needs.
export interface PanelField {
  section: string;
  name: string;
  values: string; // as changeSetting takes them
  isOn: boolean; // as a filter
  acts: boolean; // false: no picture follows it
  type: number; // FieldType
  least: number;
  most: number;
  title: string; // "" where the texts have none
  count: number; // of values
  choices: number[];
}

export interface Language {
  code: string;
  name: string; // in itself
}

export interface Favourite {
  object: SkyObject;
  name: string;
}

// What a session says that the page keeps beside the scene; all of it at once, before another frame changes it.
export interface OpenedSession {
  view: View;
  language: string; // that it was saved in
  place: string; // name, "": none
  zone: string; // "": Universal Time
  style: string; // "": that of the screen
}

export interface PanelService {
  suggest(text: string, most: number): Suggestion[];
  getFacts(object: SkyObject): Fact[];
  explain(object: SkyObject): Reason[];
  getDay(object: SkyObject): ObjectDay;
  // At `count` moments evenly spread from begin to end, both among them.
  sampleAltitudes(object: SkyObject, begin: number, end: number, count: number): Float64Array;
  describePixel(x: number, y: number): Spot;
  getNight(): Night;
  findCities(text: string, most: number): City[];
  findCitiesNear(latitude: number, longitude: number, most: number): City[];
  // Both at once: another place takes the name of the last one back.
  setPlace(latitude: number, longitude: number, name: string, zone: string): void;
  // The view with the object in its middle, whatever is shown meanwhile.
  aim(object: SkyObject, view: View): View;
  getPanelFields(): PanelField[];
  getLanguages(): Language[];
  getOption(name: string): string;
  setOption(name: string, value: string): void;
  mark(object: SkyObject, isMarked: boolean): void;
  getFavourites(): Favourite[];
  formatFavourites(): string;
  readFavourites(text: string): void;
  formatSession(): string;
  readSession(text: string): OpenedSession;
}
