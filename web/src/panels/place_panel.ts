// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import type { City } from '../core/panel_messages';
import type { Model } from '../state/model';
import type { Place } from '../state/storage';
import { isZone, offsetText } from '../state/zones';
import { bindTexts, fill, texts } from '../text/captions';
import { Combobox } from './combobox';
import { make } from './dom';
import { Drawer } from './drawer';
import { formatNumber } from './format';
import { WorldMap } from './world_map';

const kMost = 8;
const kNearby = 0.3; // degrees to a city whose name a place takes without "near"

const toPlace = ({ latitude, longitude, name, zone }: City): Place => ({ latitude, longitude, name, zone });

// Where the sky is seen from: a city by its name, a click on a map, numbers, or where the device is.
export class PlacePanel {
  readonly drawer = new Drawer('right', (captions) => captions.place);
  #model: Model;
  #map: WorldMap;
  #name = make('p', { className: 'kind' });
  #latitude = make('input', { type: 'number', min: '-90', max: '90', step: 'any' });
  #longitude = make('input', { type: 'number', min: '-180', max: '180', step: 'any' });
  #zone = make('input', { type: 'text', spellcheck: false, autocomplete: 'off' });
  #line = make('p', { className: 'line', role: 'alert', hidden: true });

  constructor(model: Model) {
    this.#model = model;
    this.#map = new WorldMap((latitude, longitude) => model.run(this.#goTo(latitude, longitude)));
    const cities = this.#makeSearch();
    const here = make('button', { type: 'button' });
    here.onclick = () => this.#askDevice();
    const zones = make('datalist', { id: 'zones' });
    for (const zone of Intl.supportedValuesOf('timeZone')) zones.append(make('option', { value: zone }));
    this.#zone.setAttribute('list', zones.id);
    const fields = make('div', { className: 'fields wide' }, ...this.#makeFields());
    this.drawer.body.append(this.#name, cities.root, here, this.#map.root, fields, zones, this.#line);
    bindTexts((captions) => {
      cities.input.ariaLabel = captions.cityHint;
      cities.input.placeholder = captions.cityHint;
      cities.list.ariaLabel = captions.suggestions;
      here.textContent = captions.here;
      this.#map.root.ariaLabel = captions.map;
      this.#show();
    });
    model.onPlace.on(() => this.#show());
    model.onLanguage.on(() => this.#show());
    this.drawer.onOpen = () => model.run(this.#drawMap());
    this.#show();
  }

  #makeSearch(): Combobox<City> {
    const model = this.#model;
    const box: Combobox<City> = new Combobox<City>({
      suggest: async (text) => {
        const cities = await model.sky.findCities(text, kMost);
        return cities.map((value) => ({
          value,
          text: value.name,
          aside: value.countryName || value.country,
        }));
      },
      choose: ({ value }) => model.run(model.setPlace(toPlace(value))),
      onNothing: () => this.#refuse(texts().nothingFound),
      onFailure: (text) => model.onFailure.emit(text),
      onCount: () => this.#accept(),
    });
    return box;
  }

  #makeFields(): HTMLElement[] {
    const label = (name: 'latitude' | 'longitude' | 'zone', input: HTMLInputElement): HTMLElement => {
      const caption = make('span');
      bindTexts((captions) => (caption.textContent = captions[name]));
      return make('label', {}, caption, input);
    };
    const move = (): void => {
      const latitude = this.#latitude.valueAsNumber,
        longitude = this.#longitude.valueAsNumber;
      if (Math.abs(latitude) <= 90 && Math.abs(longitude) <= 180)
        this.#model.run(this.#goTo(latitude, longitude));
      else this.#show();
    };
    this.#latitude.onchange = move;
    this.#longitude.onchange = move;
    this.#zone.onchange = () => {
      const zone = this.#zone.value.trim();
      if (isZone(zone)) this.#model.run(this.#model.setPlace({ ...this.#model.place, zone }));
      else this.#refuse(texts().zoneUnknown);
    };
    return [
      label('latitude', this.#latitude),
      label('longitude', this.#longitude),
      label('zone', this.#zone),
    ];
  }

  // The clocks and the name of the nearest city.
  async #goTo(latitude: number, longitude: number): Promise<void> {
    const [city] = await this.#model.sky.findCitiesNear(latitude, longitude, 1);
    const isClose = Math.hypot(city.latitude - latitude, city.longitude - longitude) < kNearby;
    const name = isClose ? city.name : fill(texts().near, city.name);
    await this.#model.setPlace({ latitude, longitude, name, zone: city.zone });
  }

  #askDevice(): void {
    const refuse = (): void => this.#refuse(texts().hereRefused);
    if (!navigator.geolocation) return refuse();
    navigator.geolocation.getCurrentPosition(
      ({ coords }) => this.#model.run(this.#goTo(coords.latitude, coords.longitude)),
      refuse,
      { timeout: 20000 },
    );
  }

  #refuse(text: string): void {
    this.#line.textContent = text;
    this.#line.hidden = false;
  }
  #accept(): void {
    this.#line.hidden = true;
  }

  async #drawMap(): Promise<void> {
    if (!this.#map.isEmpty) return;
    this.#map.setCities(await this.#model.sky.findCities('', 100000));
  }

  #show(): void {
    const { place, stage } = this.#model;
    this.#accept();
    const { latitude, longitude } = place;
    const where = `${formatNumber(Math.abs(latitude), 2)}° ${latitude < 0 ? 'S' : 'N'}, ` +
      `${formatNumber(Math.abs(longitude), 2)}° ${longitude < 0 ? 'W' : 'E'}`; // prettier-ignore
    this.#name.textContent = [place.name, where, offsetText(place.zone, stage.view.julianDate)]
      .filter(Boolean)
      .join(' · ');
    this.#latitude.value = String(Number(latitude.toFixed(5)));
    this.#longitude.value = String(Number(longitude.toFixed(5)));
    this.#zone.value = place.zone;
    this.#map.setMark(latitude, longitude);
  }
}
