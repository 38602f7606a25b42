// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The night as a bar: how dark the sky is from noon to noon, the ways of Sun and Moon, the moment of the view
// as the handle of a slider.

import type { Night } from '../core/panel_messages';
import type { Model } from '../state/model';
import { bindTexts, fill, texts } from '../text/captions';
import { make } from './dom';
import { formatNumber, formatTime } from './format';
import { drawNight, kBodies, kSamples } from './night_picture';

const kMinute = 1 / 1440;

export class NightBar {
  readonly root = make('div', { className: 'night' });
  #model: Model;
  #title = make('h3');
  #bar = make('div', { className: 'night-bar', role: 'slider', tabIndex: 0 });
  #handle = make('span', { className: 'handle' });
  #list = make('dl', { className: 'facts' });
  #night: Night | null = null;
  #place = '';
  #isAsking = false;

  constructor(model: Model) {
    this.#model = model;
    this.#bar.append(this.#handle);
    this.root.append(this.#title, this.#bar, this.#list);
    bindTexts((captions) => {
      this.#title.textContent = captions.night;
      this.#bar.ariaLabel = captions.nightBar;
    });
    this.#bar.onpointerdown = (event) => {
      this.#bar.setPointerCapture(event.pointerId);
      this.#point(event);
    };
    this.#bar.onpointermove = (event) => event.buttons & 1 && this.#point(event);
    this.#bar.onkeydown = (event) => this.#takeKey(event);
  }

  // `isAnew`: in another language.
  refresh(isAnew = false): void {
    const { julianDate, latitude, longitude } = this.#model.stage.view;
    const place = `${latitude} ${longitude} ${this.#model.place.zone}`;
    const night = this.#night;
    const holds = night && julianDate >= night.begin && julianDate <= night.end && place === this.#place;
    if ((!holds || isAnew) && !this.#isAsking) {
      this.#isAsking = true;
      this.#place = place;
      this.#model.run(this.#ask().finally(() => (this.#isAsking = false)));
    }
    if (holds) this.#move();
  }

  async #ask(): Promise<void> {
    const { sky } = this.#model;
    const night = await sky.getNight();
    const sun = await sky.sampleAltitudes(kBodies.sun, night.begin, night.end, kSamples);
    const moon = await sky.sampleAltitudes(kBodies.moon, night.begin, night.end, kSamples);
    this.#night = night;
    this.#bar.replaceChildren(drawNight(sun, moon), ...this.#makeHours(night), this.#handle);
    this.#listNight(night);
    this.#move();
  }

  // Every third hour of the clocks.
  #makeHours({ begin, end }: Night): HTMLElement[] {
    const { zone } = this.#model.place;
    const labels: HTMLElement[] = [];
    for (let quarter = Math.ceil(begin * 96) / 96; quarter < end; quarter += 1 / 96) {
      const text = formatTime(quarter, zone);
      if (!/^(00|03|06|09|12|15|18|21):00$/.test(text)) continue;
      const label = make('span', { className: 'hour' }, text.slice(0, 2));
      label.style.left = `${(100 * (quarter - begin)) / (end - begin)}%`;
      labels.push(label);
    }
    return labels;
  }

  #listNight(night: Night): void {
    const captions = texts();
    const { zone } = this.#model.place;
    const time = (moment: number): string => formatTime(moment, zone);
    const rows: [string, string][] = [
      [`${captions.sunset} – ${captions.sunrise}`, `${time(night.sunset)} – ${time(night.sunrise)}`],
      [captions.civil, `${time(night.civilDusk)} – ${time(night.civilDawn)}`],
      [captions.nautical, `${time(night.nauticalDusk)} – ${time(night.nauticalDawn)}`],
      [captions.astronomical, `${time(night.astronomicalDusk)} – ${time(night.astronomicalDawn)}`],
      [`${captions.moonrise}, ${captions.moonset}`, `${time(night.moonrise)}, ${time(night.moonset)}`],
      [captions.moon, fill(captions.moonLit, night.moonPhase, formatNumber(100 * night.moonLit, 0))],
    ];
    const shown = rows.filter(([, text]) => !text.startsWith('– – –') && text !== '–, –');
    this.#list.replaceChildren(
      ...shown.flatMap(([caption, text]) => [make('dt', {}, caption), make('dd', {}, text)]),
    );
  }

  #move(): void {
    const night = this.#night;
    if (!night) return;
    const { julianDate } = this.#model.stage.view;
    const part = Math.min(Math.max((julianDate - night.begin) / (night.end - night.begin), 0), 1);
    this.#handle.style.left = `${100 * part}%`;
    this.#bar.ariaValueMin = '0';
    this.#bar.ariaValueMax = String(Math.round((night.end - night.begin) / kMinute));
    this.#bar.ariaValueNow = String(Math.round((julianDate - night.begin) / kMinute));
    this.#bar.ariaValueText = formatTime(julianDate, this.#model.place.zone);
  }

  #point(event: PointerEvent): void {
    const night = this.#night;
    if (!night) return;
    const box = this.#bar.getBoundingClientRect();
    this.#set(night.begin + ((event.clientX - box.left) / box.width) * (night.end - night.begin));
  }

  #set(moment: number): void {
    const night = this.#night;
    if (night) this.#model.clock.set(Math.min(Math.max(moment, night.begin), night.end));
  }

  #takeKey(event: KeyboardEvent): void {
    const night = this.#night;
    const minutes: Record<string, number> = {
      ArrowLeft: -5, ArrowDown: -5, ArrowRight: 5, ArrowUp: 5, PageDown: -60, PageUp: 60,
    }; // prettier-ignore
    const by = minutes[event.key];
    if (!night) return;
    if (by) this.#set(this.#model.clock.moment + by * kMinute);
    else if (event.key === 'Home') this.#set(night.begin);
    else if (event.key === 'End') this.#set(night.end);
    else return;
    event.preventDefault();
    event.stopPropagation();
  }
}
