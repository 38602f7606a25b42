// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import { kArrayKinds, measureList, type Source, writeList } from './frame_list';
import type { Struct, StructName } from './layouts';
import type { Field, OpenedSky, Sight, SkyObject, SkyService, View } from './messages';
import { SceneModule } from './module';
import { gunzip, unpack } from './pack';
import type { PanelService } from './panel_messages';

const kOk = 0;
const kNotFound = 3;
const kMostPicked = 64;

// What the worker's own opening takes away from the caller: it waits for the module and the pack.
export type Answers = {
  [Name in Exclude<keyof SkyService, keyof PanelService>]: (...args: Parameters<SkyService[Name]>) => unknown;
};

// The calls of messages.ts on the compiled scene.
export class SceneService implements Answers {
  module!: SceneModule;
  #sky = 0;
  #enlargement = 1;
  #log: (line: string) => void;

  constructor(log: (line: string) => void) {
    this.#log = log;
  }

  async open(language: string, module: ArrayBuffer, pack: ArrayBuffer): Promise<OpenedSky> {
    const begin = performance.now();
    const [files, code] = await Promise.all([unpack(pack), this.#unzipModule(module)]);
    this.module = await SceneModule.load(code, files, this.#log);
    const roots = this.module.putStruct('SceneRoots', { data: '/data', work: '/work', language });
    const handle = this.module.room(4);
    const status = this.module.call('scene_open', roots, handle);
    this.#sky = this.module.view.getUint32(handle, true);
    if (status !== kOk) throw new Error(this.#sky ? this.getError() : 'The sky cannot be opened.');
    return { view: this.getView(), seconds: (performance.now() - begin) / 1000 };
  }

  #unzipModule(module: ArrayBuffer): Promise<ArrayBuffer> {
    return gunzip(module).catch(() => {
      throw new Error('The program of the sky is damaged.');
    });
  }

  setLanguage(language: string): void {
    this.ask('scene_set_language', this.module.putText(language));
  }

  getView(): View {
    const { julian_date: julianDate, size, ...rest } = this.getInto('SceneView', 'scene_get_view');
    return { ...rest, julianDate, enlargement: this.#enlargement };
  }

  setView(view: View): void {
    const { julianDate: julian_date, enlargement, ...rest } = view;
    this.ask('scene_set_view', this.module.putStruct('SceneView', { ...rest, julian_date }));
    this.ask('scene_set_enlargement', enlargement);
    this.#enlargement = enlargement;
  }

  changeSetting(change: string): void {
    this.ask('scene_change_setting', this.module.putText(change));
  }

  getFields(): Field[] {
    const fields: Field[] = [];
    const count = this.module.call('scene_get_field_count', this.#sky);
    for (let i = 0; i < count; ++i) {
      const field = this.getInto('SceneField', 'scene_get_field', i);
      fields.push({ section: field.section, name: field.name, values: field.values, isOn: field.is_on !== 0, acts: field.acts !== 0 });
    }
    return fields;
  }

  find(name: string): SkyObject | null {
    const text = this.module.putText(name);
    const object = this.module.putStruct('SceneObject');
    const status = this.module.call('scene_find', this.#sky, text, object);
    if (status === kNotFound) return null;
    this.#check(status);
    return this.module.getStruct('SceneObject', object);
  }

  getTitle(object: SkyObject): string | null {
    const title = this.module.call('scene_get_title', this.#sky, this.module.putStruct('SceneObject', object));
    return title ? this.module.getText(title) : null;
  }

  pick(x: number, y: number, tolerance: number): SkyObject[] {
    const objects = this.module.room(8 * kMostPicked);
    const count = this.module.room(4);
    this.ask('scene_pick', x, y, tolerance, objects, kMostPicked, count);
    const found = Math.min(this.module.view.getInt32(count, true), kMostPicked);
    return Array.from({ length: found }, (_, i) => this.module.getStruct('SceneObject', objects + 8 * i));
  }

  observe(object: SkyObject): Sight {
    const at = this.module.putStruct('SceneObject', object);
    const sight = this.getInto('SceneSight', 'scene_observe', at);
    return {
      rightAscension: sight.right_ascension,
      declination: sight.declination,
      rightAscensionOfDate: sight.right_ascension_of_date,
      declinationOfDate: sight.declination_of_date,
      azimuth: sight.azimuth,
      altitude: sight.altitude,
      distance: sight.distance,
      magnitude: sight.magnitude,
      diameter: sight.diameter,
      phaseAngle: sight.phase_angle,
      elongation: sight.elongation,
    };
  }

  lookAt(object: SkyObject): View {
    this.ask('scene_look_at', this.module.putStruct('SceneObject', object));
    return this.getView();
  }

  project(vectors: Float64Array): Float64Array {
    return this.#map('scene_project', vectors, vectors.length / 3, 2);
  }

  unproject(pixels: Float64Array): Float64Array {
    return this.#map('scene_unproject', pixels, pixels.length / 2, 3);
  }

  // Computes the frame of the view and copies its list into a buffer, the given one where that has room.
  compute(view: View, buffer: ArrayBuffer | null): { buffer: ArrayBuffer; compute: number; copy: number } {
    const begin = performance.now();
    this.setView(view);
    this.ask('scene_compute');
    const computed = performance.now();
    const sources = kArrayKinds.map((kind) => this.#getSource(kind));
    const bytes = measureList(sources);
    const target = buffer && buffer.byteLength >= bytes ? buffer : new ArrayBuffer(Math.ceil((bytes * 1.5) / 4) * 4);
    writeList(sources, target);
    return { buffer: target, compute: computed - begin, copy: performance.now() - computed };
  }

  // The file of a globe's map below the data root; null for an index that has none.
  getMap(index: number): Uint8Array | null {
    const path = this.module.call('scene_get_map', this.#sky, index);
    return path ? this.module.getFile(this.module.getText(path)) : null;
  }

  #getSource(kind: number): Source {
    const { count, record_size, records } = this.getInto('SceneArray', 'scene_get_array', kind);
    return { count, bytes: this.module.bytes.subarray(records, records + count * record_size) };
  }

  #map(name: string, from: Float64Array, count: number, each: number): Float64Array {
    const source = this.module.putNumbers(from);
    const target = this.module.room(8 * each * count);
    this.ask(name, source, target, count);
    return this.module.getNumbers(target, each * count);
  }

  // A call whose last argument is a structure that it fills.
  getInto<Name extends StructName>(struct: Name, name: string, ...args: number[]): Struct<Name> {
    const at = this.module.putStruct(struct);
    this.ask(name, ...args, at);
    return this.module.getStruct(struct, at);
  }

  // A call that hands something out.
  call(name: string, ...args: number[]): number {
    return this.module.call(name, this.#sky, ...args);
  }

  ask(name: string, ...args: number[]): void {
    this.#check(this.module.call(name, this.#sky, ...args));
  }

  #check(status: number): void {
    if (status !== kOk) throw new Error(this.getError() || `The scene failed (${status}).`);
  }

  getError(): string {
    return this.module.getText(this.module.call('scene_error', this.#sky));
  }
}
