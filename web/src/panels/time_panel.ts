// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import type { CivilTime } from '../state/calendar';
import { isDate, kLeastYear, kMostYear } from '../state/calendar';
import type { Model } from '../state/model';
import { julianFromLocal, localTime } from '../state/zones';
import { bindTexts, texts } from '../text/captions';
import type { Texts } from '../text/en';
import { CalendarGrid } from './calendar_grid';
import { make, throttle } from './dom';
import { Drawer } from './drawer';
import { NightBar } from './night_bar';

const kRefresh = 200; // milliseconds

type Part = 'year' | 'month' | 'day' | 'hour' | 'minute' | 'second';
const kParts: readonly { part: Part; caption: keyof Texts; least: number; most: number }[] = [
  { part: 'year', caption: 'years', least: kLeastYear, most: kMostYear },
  { part: 'hour', caption: 'hours', least: 0, most: 23 },
  { part: 'minute', caption: 'minutes', least: 0, most: 59 },
  { part: 'second', caption: 'seconds', least: 0, most: 59 },
];

// Date and time by the clocks of the place, and the night that they stand in.
export class TimePanel {
  readonly drawer = new Drawer('right', (captions) => captions.timeAndDate);
  #model: Model;
  #calendar = new CalendarGrid();
  #night: NightBar;
  #fields = new Map<Part, HTMLInputElement>();
  #line = make('p', { className: 'line', role: 'alert', hidden: true });

  constructor(model: Model) {
    this.#model = model;
    this.#night = new NightBar(model);
    const fields = make('div', { className: 'fields' }, ...kParts.map((part) => this.#makeField(part)));
    this.drawer.body.append(this.#calendar.root, fields, this.#line, this.#night.root);
    this.#calendar.onChoose = (date) => this.#set(date);
    const refresh = throttle(() => this.#show(), kRefresh);
    model.stage.onView(refresh);
    model.onPlace.on(refresh);
    model.onLanguage.on(() => this.#night.refresh(true));
    this.drawer.onOpen = () => this.#show();
  }

  #makeField({ part, caption, least, most }: (typeof kParts)[number]): HTMLElement {
    const input = make('input', { type: 'number', min: String(least), max: String(most), step: '1' });
    const name = make('span');
    bindTexts((captions) => (name.textContent = captions[caption]));
    input.onchange = () => {
      const value = Number(input.value);
      if (input.value !== '' && Number.isInteger(value) && value >= least && value <= most)
        this.#set({ [part]: value });
      else this.#refuse();
    };
    this.#fields.set(part, input);
    return make('label', {}, name, input);
  }

  #refuse(): void {
    this.#line.textContent = texts().noSuchDate;
    this.#line.hidden = false;
  }

  #set(news: Partial<CivilTime>): void {
    const { clock, place } = this.#model;
    const civil = { ...localTime(clock.moment, place.zone), ...news };
    if (news.year !== undefined && news.day === undefined)
      while (!isDate(civil) && civil.day > 28) --civil.day;
    if (!isDate(civil)) return this.#refuse();
    this.#line.hidden = true;
    clock.set(julianFromLocal(civil, place.zone));
  }

  #show(): void {
    if (!this.drawer.isOpen) return;
    const civil = localTime(this.#model.stage.view.julianDate, this.#model.place.zone);
    this.#calendar.show(civil);
    for (const [part, input] of this.#fields) {
      // What somebody is typing stays.
      if (input !== document.activeElement) input.value = String(Math.floor(civil[part]));
    }
    this.#night.refresh();
  }
}
