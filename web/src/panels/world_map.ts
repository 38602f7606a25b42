// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import type { City } from '../core/panel_messages';
import { fill, texts } from '../text/captions';
import { make } from './dom';
import { formatNumber } from './format';

const kWidth = 720,
  kHeight = 360; // two pixels a degree
const kStep = 1; // degrees that an arrow key moves the mark by; Page Up and Page Down ten
const kWait = 400; // milliseconds after the last key

const xOf = (longitude: number): number => ((((longitude + 180) % 360) + 360) % 360) * (kWidth / 360);
const yOf = (latitude: number): number => (90 - latitude) * (kHeight / 180);

// The Earth in plate carree: a grid of 30 degrees, and the cities, whose crowd draws the land. A click is a
// place.
export class WorldMap {
  readonly root = make('div', { className: 'world', role: 'application', tabIndex: 0 });
  isEmpty = true;
  #canvas = make('canvas', { width: kWidth, height: kHeight });
  #mark = make('span', { className: 'mark' });
  #latitude = 0;
  #longitude = 0;
  #timer = 0;
  #onChoose: (latitude: number, longitude: number) => void;

  constructor(onChoose: (latitude: number, longitude: number) => void) {
    this.#onChoose = onChoose;
    this.root.append(this.#canvas, this.#mark);
    this.root.onclick = ({ clientX, clientY }) => {
      const box = this.#canvas.getBoundingClientRect();
      onChoose(90 - (180 * (clientY - box.top)) / box.height, (360 * (clientX - box.left)) / box.width - 180);
    };
    this.root.onkeydown = (event) => this.#takeKey(event);
  }

  setCities(cities: readonly City[]): void {
    this.isEmpty = false;
    const context = this.#canvas.getContext('2d');
    if (!context) return;
    const style = getComputedStyle(this.root);
    context.clearRect(0, 0, kWidth, kHeight);
    context.strokeStyle = style.getPropertyValue('--line');
    for (let longitude = -150; longitude < 180; longitude += 30)
      drawLine(context, xOf(longitude), 0, xOf(longitude), kHeight);
    for (let latitude = -60; latitude < 90; latitude += 30)
      drawLine(context, 0, yOf(latitude), kWidth, yOf(latitude));
    context.fillStyle = style.getPropertyValue('--accent');
    context.globalAlpha = 0.75;
    for (const { latitude, longitude, population } of cities) {
      context.beginPath();
      context.arc(xOf(longitude), yOf(latitude), population > 2e6 ? 2.4 : 1.3, 0, 2 * Math.PI);
      context.fill();
    }
    context.globalAlpha = 1;
  }

  setMark(latitude: number, longitude: number): void {
    this.#latitude = latitude;
    this.#longitude = ((((longitude + 180) % 360) + 360) % 360) - 180;
    this.#mark.style.left = `${(100 * xOf(longitude)) / kWidth}%`;
    this.#mark.style.top = `${(100 * yOf(latitude)) / kHeight}%`;
    this.root.setAttribute(
      'aria-description',
      fill(texts().mapValue, formatNumber(latitude, 1), formatNumber(this.#longitude, 1)),
    );
  }

  #takeKey(event: KeyboardEvent): void {
    const steps: Record<string, [number, number]> = {
      ArrowLeft: [0, -kStep], ArrowRight: [0, kStep], ArrowUp: [kStep, 0], ArrowDown: [-kStep, 0],
      PageUp: [10, 0], PageDown: [-10, 0], Home: [0, -10], End: [0, 10],
    }; // prettier-ignore
    const by = steps[event.key];
    if (!by) return;
    event.preventDefault();
    event.stopPropagation();
    this.setMark(Math.min(Math.max(this.#latitude + by[0], -90), 90), this.#longitude + by[1]);
    clearTimeout(this.#timer);
    this.#timer = window.setTimeout(() => this.#onChoose(this.#latitude, this.#longitude), kWait);
  }
}

function drawLine(context: CanvasRenderingContext2D, x0: number, y0: number, x1: number, y1: number): void {
  context.beginPath();
  context.moveTo(x0 + 0.5, y0 + 0.5);
  context.lineTo(x1 + 0.5, y1 + 0.5);
  context.stroke();
}
