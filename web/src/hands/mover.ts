// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import type { View } from '../core/messages';
import type { Stage } from '../draw/stage';
import { turnTo, type Vector } from '../draw/turn';

type Aim = Pick<View, 'azimuth' | 'altitude' | 'zoom'>;

export const wantsNoMotion = () => window.matchMedia('(prefers-reduced-motion: reduce)').matches;

const shortWay = (degrees: number) => degrees - 360 * Math.round(degrees / 360);
const easeOut = (part: number) => 1 - (1 - part) ** 3;

const kGlide = 180; // milliseconds
const kDecay = 325; // milliseconds in which what was thrown slows down to 37 %
const kSlowest = 0.02; // pixels a millisecond at which it stops
const kFastest = 5; // pixels of the page a millisecond, whatever the moments of the last events say
const kZoomDecay = 60; // milliseconds, likewise for the wheel

// Moves the view over time: to an aim, on after a throw, towards a zoom. One move at a time, which ends when
// somebody else turns the view; who wants no motion gets its end at once.
export class Mover {
  #stage: Stage;
  #step: ((passed: number) => boolean) | null = null;
  #aim: Aim | null = null;
  #last = 0;
  #shown: Aim | null = null; // what this move showed last
  #isRunning = false;

  constructor(stage: Stage) {
    this.#stage = stage;
  }

  get isMoving(): boolean {
    return this.#step !== null;
  }

  stop(): void {
    this.#step = null;
    this.#aim = null;
  }

  // Where the view will be when it has stopped: what the next step of a key adds to.
  get aim(): Aim {
    return this.#aim ?? this.#stage.view;
  }

  glide(part: Partial<Aim>, milliseconds = kGlide): void {
    const from = this.#stage.view;
    const to = { azimuth: this.aim.azimuth, altitude: this.aim.altitude, zoom: this.aim.zoom, ...part };
    to.altitude = Math.min(90, Math.max(-90, to.altitude));
    if (wantsNoMotion()) {
      this.stop();
      this.#stage.change(to);
      return;
    }
    let gone = 0;
    const way = shortWay(to.azimuth - from.azimuth);
    this.#run((passed) => {
      gone = Math.min(1, gone + passed / milliseconds);
      const part_ = easeOut(gone);
      this.#stage.change({
        azimuth: from.azimuth + way * part_,
        altitude: from.altitude + (to.altitude - from.altitude) * part_,
        zoom: from.zoom * (to.zoom / from.zoom) ** part_,
      });
      return gone < 1;
    });
    this.#aim = to;
  }

  // Lets go of a direction held at a pixel that moved with that speed, pixels a millisecond.
  throw(held: Vector, x: number, y: number, speedX: number, speedY: number): void {
    const speed = Math.hypot(speedX, speedY);
    if (wantsNoMotion() || speed < kSlowest) return;
    const most = kFastest * window.devicePixelRatio;
    if (speed > most) [speedX, speedY] = [(speedX * most) / speed, (speedY * most) / speed];
    this.#run((passed) => {
      x += speedX * passed;
      y += speedY * passed;
      speedX *= Math.exp(-passed / kDecay);
      speedY *= Math.exp(-passed / kDecay);
      this.#stage.change(turnTo(this.#stage.view, held, x, y));
      return Math.hypot(speedX, speedY) >= kSlowest;
    });
  }

  // Comes to the zoom with the direction held at the pixel.
  zoomAt(held: Vector, x: number, y: number, zoom: number): void {
    const show = (now: number) => {
      const view = { ...this.#stage.view, zoom: now };
      this.#stage.change({ zoom: now, ...turnTo(view, held, x, y) });
    };
    if (wantsNoMotion()) {
      show(zoom);
      return;
    }
    this.#run((passed) => {
      const left = (zoom / this.#stage.view.zoom) ** Math.exp(-passed / kZoomDecay);
      const isThere = Math.abs(Math.log(left)) < 1e-3;
      show(isThere ? zoom : zoom / left);
      return !isThere;
    });
    this.#aim = { ...this.#stage.view, zoom };
  }

  // Somebody else has turned the view meanwhile: that counts.
  #isOvertaken(): boolean {
    const { view } = this.#stage;
    const shown = this.#shown ?? view;
    return view.azimuth !== shown.azimuth || view.altitude !== shown.altitude || view.zoom !== shown.zoom;
  }

  // `step`: whether it goes on.
  #run(step: (passed: number) => boolean): void {
    this.stop();
    this.#step = step;
    this.#last = performance.now();
    this.#shown = this.#stage.view;
    if (this.#isRunning) return;
    this.#isRunning = true;
    const tick = (now: number) => {
      const passed = Math.max(0, Math.min(100, now - this.#last));
      this.#last = now;
      if (this.#isOvertaken() || (this.#step && !this.#step(passed))) this.stop();
      this.#shown = this.#stage.view;
      this.#isRunning = this.#step !== null;
      if (this.#isRunning) requestAnimationFrame(tick);
    };
    requestAnimationFrame(tick);
  }
}
