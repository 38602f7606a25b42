// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import type { Model } from '../state/model';
import { kRates } from '../state/clock';
import { localTime, offsetText } from '../state/zones';
import { bindTexts, fill, languageCode, texts } from '../text/captions';
import type { Texts } from '../text/en';
import { iconButton, make, setLabel } from './dom';
import { formatDate, formatTime } from './format';
import { makeIcon } from './icons';
import type { Step } from './time_steps';
import { kSteps, takeStep } from './time_steps';

const kRateCaptions: Record<(typeof kRates)[number], keyof Texts | readonly [number, string]> = {
  1: 'speedReal', 10: [10, 's'], 60: [1, 'min'], 600: [10, 'min'], 3600: [1, 'h'], 21600: [6, 'h'], 86400: 'dayStep',
}; // prettier-ignore

// The bar below the sky: the moment, steps, play. Its button opens the panel of date and time.
export class TimeBar {
  readonly root = make('div', { className: 'time-bar glass', role: 'group' });
  readonly opener = make('button', { type: 'button', className: 'moment' });
  #model: Model;
  #clock = make('strong');
  #date = make('span');
  #now = make('button', { type: 'button', className: 'pill' });
  #play = iconButton(makeIcon('play'), () => this.toggle(1));
  #back = iconButton(makeIcon('playBack'), () => this.toggle(-1));
  #rate = make('select');
  #step = make('select');

  constructor(model: Model) {
    this.#model = model;
    const stepBack = iconButton(makeIcon('stepBack'), () => this.step(-1));
    const stepOn = iconButton(makeIcon('stepOn'), () => this.step(1));
    this.opener.append(this.#clock, this.#date);
    this.#now.onclick = () => model.clock.goLive();
    this.#rate.onchange = () => this.#play1(Math.sign(model.clock.rate) || 1);
    this.#step.append(...kSteps.map(() => make('option')));
    this.#step.value = '2';
    this.#rate.append(...kRates.map((rate) => make('option', { value: String(rate) })));
    this.#rate.value = '600';
    this.root.append(
      this.opener,
      this.#now,
      make('div', { className: 'play' }, this.#back, stepBack, stepOn, this.#play),
      this.#step,
      this.#rate,
    );
    bindTexts((captions) => {
      this.root.ariaLabel = captions.time;
      this.#now.textContent = captions.now;
      this.#now.setAttribute('aria-keyshortcuts', 'n');
      setLabel(stepBack, captions.stepBack, ',');
      setLabel(stepOn, captions.stepOn, '.');
      setLabel(this.#step, captions.step);
      setLabel(this.#rate, captions.speed);
      kSteps.forEach((step, index) =>
        Object.assign(this.#step.options[index], {
          value: String(index),
          textContent: captions[step.caption],
        }),
      );
      kRates.forEach((rate, index) => (this.#rate.options[index].textContent = captionOfRate(rate)));
      this.#step.value ||= '2';
      this.#showMode();
      this.#showMoment();
    });
    model.clock.onMode.on(() => this.#showMode());
    model.stage.onView(() => this.#showMoment());
    model.onPlace.on(() => this.#showMoment());
  }

  get chosenStep(): Step {
    return kSteps[Number(this.#step.value)] ?? kSteps[2];
  }

  step(count: number): void {
    const { clock, place } = this.#model;
    clock.set(takeStep(clock.moment, this.chosenStep, count, place.zone));
  }

  // Plays on, or backwards, or stops what plays that way.
  toggle(sign: 1 | -1): void {
    const { clock } = this.#model;
    const isPlaying = !clock.isLive && Math.sign(clock.rate) === sign;
    if (isPlaying) clock.play(0);
    else this.#play1(sign);
  }

  #play1(sign: number): void {
    this.#model.clock.play(sign * Number(this.#rate.value));
  }

  #showMode(): void {
    const { clock } = this.#model;
    const captions = texts();
    const sign = clock.isLive ? 0 : Math.sign(clock.rate);
    showPlay(this.#play, sign > 0, 'play', sign > 0 ? captions.pause : captions.play, 'Space');
    showPlay(this.#back, sign < 0, 'playBack', sign < 0 ? captions.pause : captions.playBack, 'b');
    this.#now.ariaPressed = String(clock.isLive);
  }

  #showMoment(): void {
    const { zone, name } = this.#model.place;
    const { julianDate } = this.#model.stage.view;
    const clock = formatTime(julianDate, zone, true);
    const date = [formatDate(localTime(julianDate, zone)), offsetText(zone, julianDate), name]
      .filter(Boolean)
      .join(' · ');
    if (this.#clock.textContent !== clock) this.#clock.textContent = clock;
    if (this.#date.textContent !== date) this.#date.textContent = date;
    this.opener.title = texts().timeAndDate;
  }
}

function captionOfRate(rate: (typeof kRates)[number]): string {
  const caption = kRateCaptions[rate];
  if (typeof caption !== 'string') return fill(texts().speedTimes, `${caption[0]} ${unit(caption[1])}`);
  return rate === 1 ? texts()[caption] : fill(texts().speedTimes, texts()[caption]);
}

// As the browser abbreviates them in the language.
function unit(name: string): string {
  const full = { s: 'second', min: 'minute', h: 'hour' }[name] ?? 'second';
  const parts = new Intl.NumberFormat(languageCode(), { style: 'unit', unit: full }).formatToParts(10);
  return parts.find((part) => part.type === 'unit')?.value ?? name;
}

function showPlay(
  button: HTMLButtonElement,
  isPlaying: boolean,
  icon: 'play' | 'playBack',
  label: string,
  key: string,
): void {
  button.replaceChildren(makeIcon(isPlaying ? 'pause' : icon));
  setLabel(button, label, key);
}
