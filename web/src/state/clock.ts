// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The time of the sky: that of the device's clock, a moment that stands still, or one that plays at a rate.

import { julianFromUnix, kLeastYear, kMostYear } from './calendar';
import { Signal } from './signal';

const kSecondsPerDay = 86400;
const kSkySecondsPerDegree = 240; // the sky turns by a degree in four minutes
const kLongestWait = 1; // seconds between two looks of a clock that runs
const kFirstMoment = julianFromUnix(Date.UTC(kLeastYear, 0, 2));
const kLastMoment = julianFromUnix(Date.UTC(kMostYear, 11, 30));

// Seconds of the sky in a second.
export const kRates = [1, 10, 60, 600, 3600, 21600, 86400] as const;

export class Clock {
  readonly onTick = new Signal<number>(); // Julian date: the time of the sky has changed
  readonly onMode = new Signal(); // rate, live or not
  // Degrees that a pixel shows; a sky that has turned by less than a quarter of it need not be drawn anew.
  degreesPerPixel = 0.04;

  #now: () => number; // milliseconds from 1970
  #moment: number;
  #isLive = true;
  #rate = 1; // 0: stands still
  #since: number; // milliseconds of the clock at which `#moment` was the time of the sky
  #shown = Number.NaN;

  constructor(now: () => number = Date.now) {
    this.#now = now;
    this.#since = now();
    this.#moment = julianFromUnix(this.#since);
  }

  get isLive(): boolean {
    return this.#isLive;
  }
  get rate(): number {
    return this.#rate;
  }
  get moment(): number {
    if (this.#isLive) return julianFromUnix(this.#now());
    const passed = ((this.#now() - this.#since) / 1000) * (this.#rate / kSecondsPerDay);
    return Math.min(Math.max(this.#moment + passed, kFirstMoment), kLastMoment);
  }

  // The time of the device's clock, from now on.
  goLive(): void {
    this.#isLive = true;
    this.#rate = 1;
    this.#tell();
  }

  // Another moment, which stands or plays on as the last one did; the device's clock is left.
  set(moment: number): void {
    if (this.#isLive) this.#rate = 0;
    this.#take(moment);
    this.#tell();
  }

  // 0 stands still; a negative rate plays backwards. The moment stays.
  play(rate: number): void {
    this.#take(this.moment);
    this.#rate = rate;
    this.#tell();
  }

  // To be called at each animation frame: tells the time when it is worth a frame.
  tick(): void {
    if (this.#rate === 0) return;
    const moment = this.moment;
    if (Math.abs(moment - this.#shown) * kSecondsPerDay < this.#patience()) return;
    if (!this.#isLive && (moment === kFirstMoment || moment === kLastMoment)) return this.play(0);
    this.#shown = moment;
    this.onTick.emit(moment);
  }

  // Seconds of the sky that change nothing to be seen.
  #patience(): number {
    const still = 0.25 * this.degreesPerPixel * kSkySecondsPerDegree;
    return Math.min(still, kLongestWait * Math.abs(this.#rate));
  }

  #take(moment: number): void {
    this.#moment = Math.min(Math.max(moment, kFirstMoment), kLastMoment);
    this.#since = this.#now();
    this.#isLive = false;
  }

  #tell(): void {
    this.#shown = this.moment;
    this.onMode.emit();
    this.onTick.emit(this.#shown);
  }
}
