// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import type { SkyObject } from '../core/messages';
import type { Fact, ObjectDay } from '../core/panel_messages';
import { FactKind } from '../core/panel_messages';
import type { Model } from '../state/model';
import { sameObject } from '../state/model';
import { bindTexts, fill, texts } from '../text/captions';
import { make, throttle } from './dom';
import { makeDayCurve } from './day_curve';
import { Drawer } from './drawer';
import { compassPoint, formatNumber, formatTime } from './format';
import type { Icon } from './icons';
import { makeIcon } from './icons';
import { ReasonList } from './reason_list';

// What the panel shows above the list, and below it by the clocks of the place.
const kElsewhere: readonly number[] = [
  FactKind.name,
  FactKind.kind,
  FactKind.rise,
  FactKind.transit,
  FactKind.set,
];
const kRefresh = 400; // milliseconds between two looks at an object while time passes

// What is known of an object: its panel opens when somebody clicks on it or looks for it.
export class ObjectPanel {
  readonly drawer = new Drawer('left', (captions) => captions.object);
  #model: Model;
  #facts = make('dl', { className: 'facts' });
  #kind = make('p', { className: 'kind' });
  #day = make('div', { className: 'day' });
  #reasons: ReasonList;
  #follow = actionButton('follow', () => this.#toggleFollow());
  #favourite = actionButton('star', () => this.#toggleFavourite());
  #isFavourite = false;
  #asked = 0;

  constructor(model: Model) {
    this.#model = model;
    this.#reasons = new ReasonList(model);
    const centre = actionButton('centre', () => this.#centre());
    centre.setAttribute('aria-keyshortcuts', 'c');
    const actions = make('div', { className: 'actions' }, centre, this.#follow, this.#favourite);
    this.drawer.body.append(this.#kind, actions, this.#facts, this.#day, this.#reasons.root);
    this.drawer.onClose = () => model.object && model.select(null);
    bindTexts((captions) => {
      centre.lastElementChild!.textContent = captions.centre;
      this.#follow.lastElementChild!.textContent = captions.follow;
      this.#favourite.lastElementChild!.textContent = captions.favourite;
    });
    this.#listen();
  }

  #listen(): void {
    const refresh = throttle(() => this.#refresh(), kRefresh);
    const model = this.#model;
    model.onObject.on((object) => this.#show(object));
    model.onFollow.on((object) => (this.#follow.ariaPressed = String(object !== null)));
    model.onPlace.on(refresh);
    model.onLanguage.on(refresh);
    model.onFavourites.on(refresh);
    model.onSettings.on(refresh);
    model.clock.onTick.on(refresh);
  }

  #show(object: SkyObject | null): void {
    if (!object) return this.drawer.close();
    this.#follow.ariaPressed = 'false';
    this.drawer.open();
    this.#reasons.clear();
    this.#refresh();
  }

  #centre(): void {
    if (this.#model.object) this.#model.run(this.#model.centre(this.#model.object));
  }
  #toggleFollow(): void {
    this.#model.follow(this.#model.followed ? null : this.#model.object);
  }
  #toggleFavourite(): void {
    const { object, sky } = this.#model;
    if (!object) return;
    this.#model.run(sky.mark(object, !this.#isFavourite).then(() => this.#model.favouritesChanged()));
  }

  #refresh(): void {
    const { object } = this.#model;
    if (object && this.drawer.isOpen) this.#model.run(this.#ask(object));
  }

  async #ask(object: SkyObject): Promise<void> {
    const asked = ++this.#asked;
    const { sky } = this.#model;
    const facts = await sky.getFacts(object);
    const favourites = await sky.getFavourites();
    if (asked !== this.#asked) return;
    this.#isFavourite = favourites.some((favourite) => sameObject(favourite.object, object));
    this.#favourite.ariaPressed = String(this.#isFavourite);
    this.#showFacts(facts);
    await this.#showDay(object, asked);
    await this.#reasons.refresh(object);
  }

  #showFacts(facts: Fact[]): void {
    const textOf = (kind: number): string => facts.find((fact) => fact.kind === kind)?.text ?? '';
    this.drawer.title.textContent = textOf(FactKind.name) || texts().object;
    this.#kind.textContent = textOf(FactKind.kind);
    const rows = facts.filter(({ kind }) => !kElsewhere.includes(kind));
    this.#facts.replaceChildren(...rows.flatMap(({ caption, text }) => row(caption, text)));
  }

  // Nothing where nobody can tell when it rises.
  async #showDay(object: SkyObject, asked: number): Promise<void> {
    let day: ObjectDay;
    try {
      day = await this.#model.sky.getDay(object);
    } catch {
      return this.#day.replaceChildren();
    }
    const curve = await makeDayCurve(this.#model, object, day);
    if (asked === this.#asked)
      this.#day.replaceChildren(make('h3', {}, texts().day), curve, this.#listDay(day));
  }

  #listDay(day: ObjectDay): HTMLElement {
    const { zone } = this.#model.place;
    const captions = texts();
    const list = make('dl', { className: 'facts' });
    const add = (caption: string, moment: number, aside: string): void => {
      if (!Number.isNaN(moment)) list.append(...row(caption, `${formatTime(moment, zone)} · ${aside}`));
    };
    const azimuth = (value: number): string =>
      fill(captions.azimuthShort, formatNumber(value, 0), compassPoint(value));
    add(captions.rise, day.rise, azimuth(day.riseAzimuth));
    add(captions.transit, day.transit, fill(captions.altitude, formatNumber(day.transitAltitude, 1)));
    add(captions.set, day.set, azimuth(day.setAzimuth));
    const stays = day.stays > 0 ? captions.staysUp : day.stays < 0 ? captions.staysDown : '';
    return stays ? make('div', {}, make('p', {}, stays), list) : list;
  }
}

function actionButton(icon: Icon, onclick: () => void): HTMLButtonElement {
  const button = make('button', { type: 'button', onclick }, make('span'));
  button.prepend(makeIcon(icon));
  return button;
}

// Facts without a caption have the whole width.
function row(caption: string, text: string): HTMLElement[] {
  if (caption === '')
    return [make('dt', { className: 'unseen' }, texts().facts), make('dd', { className: 'whole' }, text)];
  return [make('dt', {}, caption), make('dd', {}, text)];
}
