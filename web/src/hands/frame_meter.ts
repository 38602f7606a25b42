// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import type { Stage } from '../draw/stage';

const kKey = 'f';
const kRemembered = 60; // pictures

// Times and counts of the pictures, behind the key f: for those who look after them.
export class FrameMeter {
  #element = document.createElement('output');
  #stage: Stage;
  #moments: number[] = [];

  constructor(stage: Stage) {
    this.#stage = stage;
    this.#element.id = 'frame-meter';
    this.#element.hidden = true;
    this.#element.setAttribute('aria-live', 'off');
    document.body.append(this.#element);
    stage.onPaint((now) => this.#note(now));
    document.addEventListener('keydown', (event) => {
      if (event.key !== kKey || event.ctrlKey || event.altKey || event.metaKey || isTyping(event.target))
        return;
      this.#element.hidden = !this.#element.hidden;
      this.#write();
    });
  }

  #note(now: number): void {
    this.#moments.push(now);
    if (this.#moments.length > kRemembered) this.#moments.shift();
    if (!this.#element.hidden) this.#write();
  }

  #write(): void {
    const { compute, copy, take, draw, drawCalls, marks } = this.#stage.meter;
    const moments = this.#moments;
    const span = moments.length > 1 ? (moments[moments.length - 1] - moments[0]) / (moments.length - 1) : 0;
    const lines = [
      `${span ? (1000 / span).toFixed(0) : '-'} /s`,
      `compute ${compute.toFixed(1)} ms`,
      `copy ${copy.toFixed(1)} ms`,
      `take ${take.toFixed(1)} ms`,
      `draw ${draw.toFixed(1)} ms`,
      `${drawCalls} calls`,
      `${marks} marks`,
    ];
    this.#element.textContent = lines.join('\n');
  }
}

const isTyping = (target: EventTarget | null) =>
  target instanceof HTMLElement &&
  (target.isContentEditable || /^(INPUT|TEXTAREA|SELECT)$/.test(target.tagName));
