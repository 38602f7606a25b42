// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What the page shows beside the view itself: the place and its clocks, the style, the language, the object
// whose panel is open. Whoever changes one of these does it here; panels listen.

import type { SkyObject, View } from '../core/messages';
import type { PanelField } from '../core/panel_messages';
import type { Sky } from '../core/sky';
import type { Stage } from '../draw/stage';
import { toHorizon, turnTo } from '../draw/turn';
import type { Mover } from '../hands/mover';
import { setTexts } from '../text/captions';
import type { Style } from './address';
import { differences } from './changes';
import { Clock } from './clock';
import { Signal } from './signal';
import type { Kept, Place } from './storage';
import { keep } from './storage';

const kCentring = 600; // milliseconds to an object that is looked for
const kDegreesToCorner = 37; // from the middle of a picture at zoom 1

export const sameObject = (a: SkyObject | null, b: SkyObject | null): boolean =>
  a?.kind === b?.kind && a?.number === b?.number;

export class Model {
  readonly stage: Stage;
  readonly sky: Sky;
  readonly mover: Mover;
  readonly clock = new Clock();
  readonly onPlace = new Signal<Place>();
  readonly onStyle = new Signal<Style>();
  readonly onLanguage = new Signal<string>();
  readonly onObject = new Signal<SkyObject | null>();
  readonly onFollow = new Signal<SkyObject | null>();
  readonly onFavourites = new Signal();
  readonly onSettings = new Signal();
  readonly onFailure = new Signal<string>(); // one line for the user
  readonly onNote = new Signal<string>();

  place: Place = { latitude: 0, longitude: 0, name: '', zone: 'UTC' };
  style: Style = 'screen';
  language: string;
  object: SkyObject | null = null;
  findMiddle: (() => { x: number; y: number }) | null = null; // pixel of the view; null: the middle
  followed: SkyObject | null = null;
  defaults: PanelField[] = []; // the settings as the data root has them
  #keeper: Storage | null;
  #moment: number; // that the clock has given to the view
  #isAiming = false;

  constructor(stage: Stage, mover: Mover, keeper: Storage | null, language: string) {
    this.stage = stage;
    this.sky = stage.sky;
    this.mover = mover;
    this.#moment = stage.view.julianDate;
    this.language = language;
    this.#keeper = keeper;
    stage.onView((view) => this.#takeView(view));
    this.clock.onTick.on((moment) => this.#show(moment));
  }

  // Runs what the user asked for; a failure is told, and nothing else is changed.
  run(work: Promise<unknown>): void {
    work.catch((reason: unknown) =>
      this.onFailure.emit(reason instanceof Error ? reason.message : String(reason)),
    );
  }

  keep(news: Kept): void {
    keep(this.#keeper, news);
  }

  // The view first: another place in a view takes the name of the scene's place back.
  async setPlace(place: Place): Promise<void> {
    this.place = place;
    this.stage.change({ latitude: place.latitude, longitude: place.longitude });
    await this.sky.setPlace(place.latitude, place.longitude, place.name, place.zone);
    this.keep({ place });
    this.stage.refresh();
    this.onPlace.emit(place);
  }

  async setStyle(style: Style): Promise<void> {
    await this.sky.setOption('style', style);
    this.style = style;
    this.keep({ style });
    document.documentElement.dataset['style'] = style;
    this.stage.refresh();
    this.onStyle.emit(style);
  }

  async setLanguage(language: string): Promise<void> {
    await this.sky.setLanguage(language);
    this.language = language;
    this.keep({ language });
    document.documentElement.lang = language;
    setTexts(language);
    this.stage.refresh();
    this.onLanguage.emit(language);
  }

  async changeSetting(change: string): Promise<void> {
    await Promise.all([this.sky.changeSetting(change), this.settingsChanged()]);
  }

  async setOption(name: string, value: string): Promise<void> {
    await Promise.all([this.sky.setOption(name, value), this.settingsChanged()]);
  }

  // To be called by whoever changed settings or options by a road of their own. The scene answers in the order
  // in which it is asked: what the browser is to keep first, then the frame. So a change that is seen is kept,
  // whenever the page is closed.
  async settingsChanged(): Promise<void> {
    const asked = [this.sky.getPanelFields(), ...kKeptOptions.map((name) => this.sky.getOption(name))] as const;
    this.stage.refresh();
    const [fields, ...values] = await Promise.all(asked);
    const options = Object.fromEntries(
      kKeptOptions.map((name, i) => [name, values[i]] as const).filter(([, value]) => value),
    );
    this.keep({ changes: differences(this.defaults, fields), options });
    this.onSettings.emit();
  }

  // Opens the panel of an object, or closes it.
  select(object: SkyObject | null): void {
    if (!object || !sameObject(object, this.followed)) this.follow(null);
    this.object = object;
    this.onObject.emit(object);
  }

  async centre(object: SkyObject): Promise<void> {
    this.mover.glide(await this.#aim(object, this.stage.view), kCentring);
  }

  // The direction that has the object in the middle of what the panels leave of the picture.
  async #aim(object: SkyObject, view: View): Promise<{ azimuth: number; altitude: number }> {
    const { azimuth, altitude } = await this.sky.aim(object, view);
    const aimed = { ...view, azimuth, altitude };
    const middle = { x: view.width / 2, y: view.height / 2 };
    const wanted = this.findMiddle?.() ?? middle;
    return turnTo(aimed, toHorizon(aimed, middle.x, middle.y), wanted.x, wanted.y);
  }

  // Keeps an object in the middle as time passes; null: no more.
  follow(object: SkyObject | null): void {
    if (sameObject(object, this.followed)) return;
    this.followed = object;
    this.onFollow.emit(object);
    if (object) this.run(this.centre(object));
  }

  // The favourites have changed: the browser keeps the list as the scene writes it.
  async favouritesChanged(): Promise<void> {
    this.keep({ favourites: await this.sky.formatFavourites() });
    this.stage.refresh();
    this.onFavourites.emit();
  }

  // A moment that somebody else has set is the clock's from then on.
  #takeView(view: View): void {
    this.clock.degreesPerPixel = kDegreesToCorner / view.zoom / (Math.hypot(view.width, view.height) / 2);
    if (view.julianDate === this.#moment) return;
    this.#moment = view.julianDate;
    this.clock.set(view.julianDate);
  }

  #show(moment: number): void {
    if (moment === this.#moment) return;
    if (!this.followed) {
      this.#moment = moment;
      return this.stage.change({ julianDate: moment });
    }
    if (this.#isAiming) return; // taken up when that is done
    this.#isAiming = true;
    const wanted = { ...this.stage.view, julianDate: moment };
    const done = this.#aim(this.followed, wanted).then((look) => {
      this.#moment = moment;
      this.stage.change({ julianDate: moment, ...look });
    });
    const end = (): void => {
      this.#isAiming = false;
      if (this.clock.rate === 0) this.#show(this.clock.moment);
    };
    this.run(
      done.then(end, (reason: unknown) => {
        this.#isAiming = false;
        throw reason;
      }),
    );
  }
}

// What of the scene's options the browser keeps; the others belong to the place or are kept by themselves.
export const kKeptOptions = [
  'landscape', 'legend', 'bortle', 'limit-magnitude', 'telrad', 'sky', 'frames-of', 'showers', 'orbits',
] as const; // prettier-ignore
