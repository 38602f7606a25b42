// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The address of the page holds what is shown: it is written when the view rests, and read when the page
// opens or somebody changes the fragment.

import { foreignPairs, formatAddress, parseAddress } from './address';
import type { SharedView } from './address';
import type { Model } from './model';

const kWait = 300; // milliseconds: browsers refuse histories that are written faster

function describeView(model: Model): SharedView {
  const { view } = model.stage;
  const { place, clock } = model;
  const shared: SharedView = {
    latitude: view.latitude,
    longitude: view.longitude,
    azimuth: view.azimuth,
    altitude: view.altitude,
    zoom: view.zoom,
    style: model.style,
    language: model.language,
  };
  if (place.name) shared.place = place.name;
  if (place.zone) shared.zone = place.zone;
  if (!clock.isLive) shared.moment = clock.moment;
  if (model.object) shared.object = model.object;
  return shared;
}

export const addressOf = (model: Model): string => {
  const here = window.location;
  const fragment = formatAddress(describeView(model), foreignPairs(here.hash.slice(1)));
  return `${here.href.split('#', 1)[0]}#${fragment}`;
};

async function showShared(model: Model, shared: SharedView): Promise<void> {
  const { latitude, longitude, azimuth, altitude, zoom } = shared;
  await model.setPlace({ latitude, longitude, name: shared.place ?? '', zone: shared.zone ?? 'UTC' });
  if (shared.language && shared.language !== model.language) await model.setLanguage(shared.language);
  if (shared.style !== model.style) await model.setStyle(shared.style ?? 'screen');
  if (shared.moment === undefined) model.clock.goLive();
  else model.clock.set(shared.moment);
  model.follow(null);
  model.stage.change({ azimuth, altitude, zoom });
  model.select(shared.object ?? null);
}

export function keepAddress(model: Model): void {
  let timer = 0;
  let written = window.location.href;
  const write = (): void => {
    timer = 0;
    written = addressOf(model);
    window.history.replaceState(null, '', written);
  };
  const later = (): void => void (timer ||= window.setTimeout(write, kWait));
  model.stage.onView(later);
  model.onStyle.on(later);
  model.onLanguage.on(later);
  model.onObject.on(later);
  model.onPlace.on(later);
  window.addEventListener('hashchange', () => {
    if (window.location.href === written) return;
    const shared = parseAddress(window.location.hash.slice(1));
    if (shared) model.run(showShared(model, shared));
  });
}
