// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What the page begins with: the view of its address, else what the browser kept of the last visit, else a
// place by the zone of the device's clock, the time of that clock, and the south.

import { parseAddress } from './address';
import type { Style } from './address';
import type { Model } from './model';
import type { Kept, Place } from './storage';
import { ownZone } from './zones';

const kAltitude = 30; // of the first look
const kSouth = 180;
const kWholeSky = 0.5; // zoom

export interface Beginning {
  language?: string;
  style: Style;
  place: Place | null; // null: by the zone of the clock
  moment: number | null; // Julian date; null: that of the clock
  look: { azimuth: number; altitude: number; zoom: number } | null;
  object: { kind: number; number: number } | null;
  kept: Kept;
}

export function beginningOf(fragment: string, kept: Kept): Beginning {
  const shared = parseAddress(fragment);
  const language = shared?.language ?? kept.language;
  const beginning: Beginning = {
    style: shared?.style ?? (shared ? 'screen' : (kept.style ?? 'screen')),
    place: kept.place ?? null,
    moment: shared?.moment ?? null,
    look: null,
    object: shared?.object ?? null,
    kept,
  };
  if (language) beginning.language = language;
  if (shared) {
    const { latitude, longitude, azimuth, altitude, zoom } = shared;
    beginning.place = { latitude, longitude, name: shared.place ?? '', zone: shared.zone ?? 'UTC' };
    beginning.look = { azimuth, altitude, zoom };
  }
  return beginning;
}

// The largest city that has the clocks of the device, else one of the prime meridian.
async function placeByClock(model: Model): Promise<Place> {
  const cities = await model.sky.findCities('', 100000);
  const zone = ownZone();
  const city =
    cities.find((one) => one.zone === zone) ??
    cities.find((one) => one.zone === 'Europe/London') ??
    cities[0];
  return { latitude: city.latitude, longitude: city.longitude, name: city.name, zone: city.zone };
}

// Settings that no longer fit are told and left out.
async function takeKept(model: Model, { changes = [], options = {}, favourites }: Kept): Promise<void> {
  const attempts: Promise<void>[] = changes.map((change) => model.sky.changeSetting(change));
  for (const [name, value] of Object.entries(options)) attempts.push(model.sky.setOption(name, value));
  if (favourites) attempts.push(model.sky.readFavourites(favourites));
  for (const attempt of attempts) model.run(attempt);
  await Promise.allSettled(attempts);
}

export async function begin(model: Model, beginning: Beginning): Promise<void> {
  model.defaults = await model.sky.getPanelFields();
  await takeKept(model, beginning.kept);
  await model.setStyle(beginning.style);
  const place = beginning.place ?? (await placeByClock(model));
  await model.setPlace(place);
  const south = { azimuth: place.latitude < 0 ? 0 : kSouth, altitude: kAltitude, zoom: kWholeSky };
  model.stage.change(beginning.look ?? south);
  if (beginning.moment === null) model.clock.goLive();
  else model.clock.set(beginning.moment);
}
