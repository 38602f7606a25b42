// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import type { Frame, Sky } from '../core/sky';
import type { View } from '../core/messages';

type Listener<Argument> = (argument: Argument) => void;

// What is on the screen: the canvas, the view that the hands and the panels turn, and the frame that shows it. The view
// here is the newest one that anybody asked for; the frame follows as fast as the worker computes.
export class Stage {
  readonly canvas: HTMLCanvasElement;
  readonly sky: Sky;
  #view: View;
  #onView: Listener<View>[] = [];
  #onFrame: Listener<Frame>[] = [];
  #onRest: Listener<View>[] = [];

  constructor(canvas: HTMLCanvasElement, sky: Sky, view: View) {
    this.canvas = canvas;
    this.sky = sky;
    this.#view = view;
    sky.events.onFrame = (frame) => {
      for (const listener of this.#onFrame) listener(frame);
    };
  }

  get view(): Readonly<View> {
    return this.#view;
  }

  // Changes parts of the view and shows it; what is out of range is put into it, azimuths turn round.
  change(part: Partial<View>): void {
    this.#view = { ...this.#view, ...part };
    this.sky.show(this.#view);
    for (const listener of this.#onView) listener(this.#view);
  }

  // After every change of the view, before its frame is there.
  onView(listener: Listener<View>): void {
    this.#onView.push(listener);
  }

  // After every frame that came.
  onFrame(listener: Listener<Frame>): void {
    this.#onFrame.push(listener);
  }

  // When the view has not changed for a moment and its own frame is shown: time to say what is in the middle, to
  // write the address.
  onRest(listener: Listener<View>): void {
    this.#onRest.push(listener);
  }

  // Pixels of the view under a point of the page (clientX, clientY).
  toPixels(clientX: number, clientY: number): { x: number; y: number } {
    const box = this.canvas.getBoundingClientRect();
    return {
      x: ((clientX - box.left) * this.#view.width) / box.width,
      y: ((clientY - box.top) * this.#view.height) / box.height,
    };
  }
}
