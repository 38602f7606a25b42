// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT

// What page and worker say to each other. The worker holds the scene and answers the calls of `SkyService`, one after
// the other in the order in which they came; the page calls them through `Sky` (sky.ts). Frames go a road of their
// own, so that none waits behind another: `Sky.show` says what is to be seen, `Sky.onFrame` hands out what was computed.
//
// A call that the scene refuses rejects its promise with a `SkyError`, whose text is one line for the user. Angles are
// degrees, moments Julian dates of Universal Time, pixels those of the view, y down, as everywhere in scene_c.h.

import type { PanelService } from './panel_messages';

// Where the picture is looked at from, when, and where to; the worker's truth and that of every frame. Pixels are
// those of the screen, the device's pixel ratio included.
export interface View {
  width: number; // pixels, 64 to 16384
  height: number;
  latitude: number; // north positive
  longitude: number; // east positive
  julianDate: number;
  azimuth: number; // of the middle of the picture, from north over east, 0 to 360
  altitude: number;
  zoom: number; // 0.25 to 10000; 1 shows 37 degrees from the middle to a corner
  enlargement: number; // of lines, points and texts against a picture of that size on a desk, 0.25 to 8
}

// An object of the catalogs: four-character code as a word ("star" = 0x73746172) and number.
export interface SkyObject {
  kind: number;
  number: number;
}

// An object as the observer of the view sees it. Not a number: unknown, or without a meaning for the object.
export interface Sight {
  rightAscension: number; // astrometric, J2000
  declination: number;
  rightAscensionOfDate: number; // apparent
  declinationOfDate: number;
  azimuth: number; // apparent, without refraction
  altitude: number;
  distance: number; // au
  magnitude: number;
  diameter: number; // apparent
  phaseAngle: number;
  elongation: number; // from the Sun
}

// A setting as the scene has it; `values` as `changeSetting` takes them.
export interface Field {
  section: string;
  name: string;
  values: string;
  isOn: boolean;
  acts: boolean; // false: no picture follows it
}

export interface OpenedSky {
  view: View; // that of the data root's defaults
  seconds: number; // from the bytes of module and data to the scene ready
}

// Calls that the worker answers. A new one is a method here and one of the same name in service.ts.
export interface SkyService extends PanelService {
  open(language: string, module: ArrayBuffer, pack: ArrayBuffer): OpenedSky;
  setLanguage(language: string): void;
  // The view of the last frame asked for, or of the defaults.
  getView(): View;
  changeSetting(change: string): void;
  getFields(): Field[];
  // Null: no object, or more than one, of that name.
  find(name: string): SkyObject | null;
  // "Sirius (alpha CMa, 9 CMa, HR 2491, HIP 32349)"; null for an object that is not in the catalogs.
  getTitle(object: SkyObject): string | null;
  // The objects of the last computed frame at a pixel or at most that many pixels beside it, the uppermost first.
  pick(x: number, y: number, tolerance: number): SkyObject[];
  observe(object: SkyObject): Sight;
  // The view that has the object in its middle; the page shows it, or does not.
  lookAt(object: SkyObject): View;
  // Unit vectors of J2000, x y z one after the other, to pixels x y and back, by the view of the last frame.
  project(vectors: Float64Array): Float64Array;
  unproject(pixels: Float64Array): Float64Array;
  // The picture of a surface that a globe of a frame names by its index; null where there is none.
  getMap(index: number): Uint8Array | null;
}

// What a frame took, and what it holds.
export interface FrameTimes {
  compute: number; // milliseconds in the scene
  copy: number; // milliseconds to copy the list out of the module's memory
}

// One message each way. `id` ties an answer to its question.
export type ToWorker =
  | { type: 'call'; id: number; name: keyof SkyService; args: unknown[] }
  | { type: 'view'; view: View; buffer: ArrayBuffer | null }; // compute a frame of it, into that memory if it suffices

export type FromWorker =
  | { type: 'answer'; id: number; value: unknown }
  | { type: 'failure'; id: number; text: string }
  | { type: 'frame'; view: View; buffer: ArrayBuffer; times: FrameTimes }
  | { type: 'frame-failure'; text: string }
  | { type: 'log'; text: string }; // a diagnostic line of a loader
