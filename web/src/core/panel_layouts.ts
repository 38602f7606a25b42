// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The structures of scene_objects_c.h, scene_almanac_c.h and scene_state_c.h, as layouts.ts has those of
// scene_c.h.

import type { Members } from './layouts';

export const kPanelStructs = {
  SceneSuggestion: { object: 'object', name: 'text', title: 'text', kind: 'text' },
  SceneFact: { kind: 'i32', caption: 'text', text: 'text' },
  SceneReason: { kind: 'i32', text: 'text', fix: 'text' },
  SceneDay: {
    size: 'u32',
    stays: 'i32',
    rise: 'f64',
    transit: 'f64',
    set: 'f64',
    rise_azimuth: 'f64',
    transit_altitude: 'f64',
    set_azimuth: 'f64',
  },
  SceneSpot: {
    size: 'u32',
    is_ground: 'i32',
    right_ascension: 'f64',
    declination: 'f64',
    azimuth: 'f64',
    altitude: 'f64',
    constellation: 'text',
  },
  SceneNight: {
    size: 'u32',
    darkness: 'i32',
    begin: 'f64',
    end: 'f64',
    middle: 'f64',
    sunset: 'f64',
    sunrise: 'f64',
    civil_dusk: 'f64',
    civil_dawn: 'f64',
    nautical_dusk: 'f64',
    nautical_dawn: 'f64',
    astronomical_dusk: 'f64',
    astronomical_dawn: 'f64',
    moonrise: 'f64',
    moonset: 'f64',
    moon_phase_angle: 'f64',
    moon_lit: 'f64',
    moon_waxes: 'i32',
    reserved: 'i32',
    moon_phase: 'text',
  },
  SceneCity: {
    latitude: 'f64',
    longitude: 'f64',
    height: 'f64',
    population: 'i32',
    reserved: 'i32',
    name: 'text',
    country: 'text',
    country_name: 'text',
    zone: 'text',
  },
  SceneLanguage: { code: 'text', name: 'text' },
  SceneFavourite: { object: 'object', name: 'text' },
} as const satisfies Record<string, Members>;
