// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import type { Struct, StructName } from './layouts';
import { kStructs, layOut } from './layouts';
import type { SkyObject, View } from './messages';
import type {
  City, Fact, Favourite, Language, Night, ObjectDay, OpenedSession, PanelField, PanelService, Reason, Spot, Suggestion,
} from './panel_messages'; // prettier-ignore
import type { SceneService } from './service';

// "rise_azimuth" of a structure is `riseAzimuth` of a message.
type Camel<Name extends string> = Name extends `${infer Head}_${infer Tail}`
  ? `${Head}${Capitalize<Camel<Tail>>}`
  : Name;
type Message<Name extends StructName> = {
  [
    Member in Exclude<keyof Struct<Name>, 'size' | 'reserved'> as Camel<Member & string>
  ]: Struct<Name>[Member];
};

function toMessage<Name extends StructName>(struct: Struct<Name>): Message<Name> {
  const members = Object.entries(struct).filter(([name]) => name !== 'size' && name !== 'reserved');
  const camel = (name: string): string => name.replace(/_(\w)/g, (_, letter: string) => letter.toUpperCase());
  return Object.fromEntries(members.map(([name, value]) => [camel(name), value])) as Message<Name>;
}

// The calls of panel_messages.ts on the compiled scene.
export class PanelCalls implements PanelService {
  #service: SceneService;

  constructor(service: SceneService) {
    this.#service = service;
  }

  suggest(text: string, most: number): Suggestion[] {
    return this.#list('SceneSuggestion', 'scene_suggest', this.#put(text), most);
  }
  getFacts(object: SkyObject): Fact[] {
    return this.#list('SceneFact', 'scene_get_facts', this.#object(object));
  }
  explain(object: SkyObject): Reason[] {
    return this.#list('SceneReason', 'scene_explain', this.#object(object));
  }
  getDay(object: SkyObject): ObjectDay {
    return this.#into('SceneDay', 'scene_get_day', this.#object(object));
  }

  sampleAltitudes(object: SkyObject, begin: number, end: number, count: number): Float64Array {
    const at = this.#object(object);
    const numbers = this.#module.room(8 * count);
    this.#service.ask('scene_sample_altitudes', at, begin, end, numbers, count);
    return this.#module.getNumbers(numbers, count);
  }

  describePixel(x: number, y: number): Spot {
    const spot = this.#into('SceneSpot', 'scene_describe_pixel', x, y);
    return { ...spot, isGround: spot.isGround !== 0 };
  }
  getNight(): Night {
    const night = this.#into('SceneNight', 'scene_get_night');
    return { ...night, moonWaxes: night.moonWaxes !== 0 };
  }
  findCities(text: string, most: number): City[] {
    return this.#list('SceneCity', 'scene_find_cities', this.#put(text), most);
  }
  findCitiesNear(latitude: number, longitude: number, most: number): City[] {
    return this.#list('SceneCity', 'scene_find_cities_near', latitude, longitude, most);
  }

  setPlace(latitude: number, longitude: number, name: string, zone: string): void {
    this.#service.setView({ ...this.#service.getView(), latitude, longitude });
    this.setOption('place', name);
    this.setOption('zone', zone);
  }

  aim(object: SkyObject, view: View): View {
    this.#service.setView(view);
    return this.#service.lookAt(object);
  }

  getPanelFields(): PanelField[] {
    const count = this.#service.call('scene_get_field_count');
    return Array.from({ length: count }, (_, index) => {
      const field = this.#into('SceneField', 'scene_get_field', index);
      const choices = field.choices === '' ? [] : field.choices.split(',').map(Number);
      return { ...field, isOn: field.isOn !== 0, acts: field.acts !== 0, choices };
    });
  }

  getLanguages(): Language[] {
    return this.#list('SceneLanguage', 'scene_get_languages');
  }
  getOption(name: string): string {
    return this.#text('scene_get_option', this.#put(name));
  }
  setOption(name: string, value: string): void {
    this.#service.ask('scene_set_option', this.#put(name), this.#put(value));
  }
  mark(object: SkyObject, isMarked: boolean): void {
    this.#service.ask('scene_mark', this.#object(object), isMarked ? 1 : 0);
  }
  getFavourites(): Favourite[] {
    return this.#list('SceneFavourite', 'scene_get_favourites');
  }
  formatFavourites(): string {
    return this.#text('scene_format_favourites');
  }
  readFavourites(text: string): void {
    this.#service.ask('scene_read_favourites', this.#put(text));
  }
  formatSession(): string {
    return this.#text('scene_format_session');
  }
  readSession(text: string): OpenedSession {
    this.#service.ask('scene_read_session', this.#put(text));
    return {
      view: this.#service.getView(),
      language: this.#text('scene_get_session_language'),
      place: this.getOption('place'),
      zone: this.getOption('zone'),
      style: this.getOption('style'),
    };
  }

  get #module() {
    return this.#service.module;
  }
  #put(text: string): number {
    return this.#module.putText(text);
  }
  #object(object: SkyObject): number {
    return this.#module.putStruct('SceneObject', object);
  }

  // A call that hands out a text, null for a failure.
  #text(name: string, ...args: number[]): string {
    const text = this.#service.call(name, ...args);
    if (!text) throw new Error(this.#service.getError());
    return this.#module.getText(text);
  }

  // A call whose last argument is a structure that it fills.
  #into<Name extends StructName>(struct: Name, name: string, ...args: number[]): Message<Name> {
    return toMessage<Name>(this.#service.getInto(struct, name, ...args));
  }

  // A call whose last argument is an array of records that it fills.
  #list<Name extends StructName>(struct: Name, name: string, ...args: number[]): Message<Name>[] {
    const { count, record_size, records } = this.#service.getInto('SceneArray', name, ...args);
    const { size } = layOut(kStructs[struct]);
    if (count && record_size < size)
      throw new Error(`${name}: records of ${record_size} bytes, ${size} are wanted`);
    return Array.from({ length: count }, (_, index) =>
      toMessage<Name>(this.#module.getStruct(struct, records + index * record_size)),
    );
  }
}
