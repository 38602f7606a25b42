// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT

// The structures of the C interface as they lie in the module's memory: members in order, with their types of wasm32.
// web/test/layouts.test.mjs compares the table with the headers in scene/include/scene.

import { kPanelStructs } from './panel_layouts';

export type Word = 'i32' | 'u32' | 'f64' | 'text' | 'pointer' | 'object' | `char${number}`;
type Value<Type extends Word> = Type extends 'text' | `char${number}`
  ? string
  : Type extends 'object'
    ? { kind: number; number: number }
    : number;

export type Members = Record<string, Word>;
export type Record_<Of extends Members> = { -readonly [Name in keyof Of]: Value<Of[Name]> };

export const kStructs = {
  SceneRoots: { size: 'u32', data: 'text', work: 'text', language: 'text' },
  SceneView: {
    size: 'u32',
    width: 'i32',
    height: 'i32',
    latitude: 'f64',
    longitude: 'f64',
    julian_date: 'f64',
    azimuth: 'f64',
    altitude: 'f64',
    zoom: 'f64',
  },
  SceneField: {
    size: 'u32',
    section: 'char8',
    name: 'char64',
    values: 'char128',
    is_on: 'i32',
    acts: 'i32',
    type: 'i32',
    count: 'i32',
    reserved: 'i32',
    least: 'f64',
    most: 'f64',
    title: 'char96',
    choices: 'char128',
  },
  SceneArray: { size: 'u32', count: 'u32', record_size: 'u32', records: 'pointer' },
  SceneObject: { kind: 'i32', number: 'i32' },
  SceneSight: {
    size: 'u32',
    reserved: 'u32',
    right_ascension: 'f64',
    declination: 'f64',
    right_ascension_of_date: 'f64',
    declination_of_date: 'f64',
    azimuth: 'f64',
    altitude: 'f64',
    distance: 'f64',
    magnitude: 'f64',
    diameter: 'f64',
    phase_angle: 'f64',
    elongation: 'f64',
  },
  ...kPanelStructs,
} as const satisfies Record<string, Members>;

export type StructName = keyof typeof kStructs;
export type Struct<Name extends StructName> = Record_<(typeof kStructs)[Name]>;

const kSizes: Record<string, number> = { i32: 4, u32: 4, f64: 8, text: 4, pointer: 4, object: 8 };
export const sizeOfWord = (word: Word) => kSizes[word] ?? Number(word.slice(4));
const alignOf = (word: Word) => (word === 'f64' ? 8 : word.startsWith('char') ? 1 : 4);

// Where each member begins, and the size of the whole.
export function layOut(members: Members): { offsets: Record<string, number>; size: number } {
  const offsets: Record<string, number> = {};
  let at = 0;
  let widest = 1;
  for (const [name, word] of Object.entries(members)) {
    const align = alignOf(word);
    at = Math.ceil(at / align) * align;
    offsets[name] = at;
    at += sizeOfWord(word);
    widest = Math.max(widest, align);
  }
  return { offsets, size: Math.ceil(at / widest) * widest };
}
