// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import type { View } from '../core/messages';
import type { Frame, Sky } from '../core/sky';
import { Painter } from './painter';
import { findTurn } from './turn';

type Listener<Argument> = (argument: Argument) => void;

// Milliseconds and counts of what was shown last, for the meter.
export interface Meter {
  compute: number; // in the scene
  copy: number; // of the list out of the scene's memory
  take: number; // to make marks of the list
  draw: number; // to give the marks to WebGL
  drawCalls: number;
  marks: number;
}

const kRest = 250; // milliseconds without a change
const kMostZoom = 10000;
const kLeastZoom = 0.25;
// Pixels of the page that a pixel of the standard picture takes at least: what is legible at arm's length.
const kLeastUnit = 0.95;
const kStandardPixels = 1600 * 1000;
const clamp = (value: number, least: number, most: number) => Math.min(most, Math.max(least, value));

// What is on the screen: the canvas, the view that the hands and the panels turn, and the frame that shows
// it. The view here is the newest one that anybody asked for. Its frame follows as fast as the worker
// computes; until it is there the last one is drawn turned, so that every change is seen at once.
export class Stage {
  readonly canvas: HTMLCanvasElement;
  readonly sky: Sky;
  readonly meter: Meter = { compute: 0, copy: 0, take: 0, draw: 0, drawCalls: 0, marks: 0 };
  #view: View;
  #frame: Frame | null = null;
  #gl: WebGL2RenderingContext;
  #painter: Painter;
  #onView: Listener<View>[] = [];
  #onFrame: Listener<Frame>[] = [];
  #onPaint: Listener<number>[] = [];
  #onRest: Listener<View>[] = [];
  #changed = 0;
  #isRestTold = true;
  #isDirty = false;
  #isScheduled = false;

  // Throws where the browser has no WebGL 2.
  constructor(canvas: HTMLCanvasElement, sky: Sky, view: View) {
    this.canvas = canvas;
    this.sky = sky;
    this.#view = view;
    const gl = canvas.getContext('webgl2', { alpha: false, antialias: false, depth: true });
    if (!gl) throw new Error('This browser has no WebGL 2, which the sky is drawn with.');
    this.#gl = gl;
    this.#painter = this.#makePainter();
    sky.events.onFrame = (frame) => this.#take(frame);
    canvas.addEventListener('webglcontextlost', (event) => event.preventDefault());
    canvas.addEventListener('webglcontextrestored', () => {
      this.#painter = this.#makePainter();
      this.refresh();
    });
    new ResizeObserver(() => this.#fit()).observe(canvas);
    this.#fit();
  }

  get view(): Readonly<View> {
    return this.#view;
  }
  // The frame that was drawn last, its display list with it.
  get frame(): Frame | null {
    return this.#frame;
  }

  // Changes parts of the view and shows it; what is out of range is put into it, azimuths turn round.
  change(part: Partial<View>): void {
    const view = { ...this.#view, ...part };
    view.azimuth = ((view.azimuth % 360) + 360) % 360;
    view.altitude = clamp(view.altitude, -90, 90);
    view.zoom = clamp(view.zoom, kLeastZoom, kMostZoom);
    this.#view = view;
    this.refresh();
    for (const listener of this.#onView) listener(view);
  }

  // Shows the same view anew: a setting, the language, a style has changed.
  refresh(): void {
    this.#changed = performance.now();
    this.#isRestTold = false;
    this.sky.show(this.#view);
    this.#schedule();
  }

  // After every change of the view, before its frame is there.
  onView(listener: Listener<View>): void {
    this.#onView.push(listener);
  }
  // After every frame that came.
  onFrame(listener: Listener<Frame>): void {
    this.#onFrame.push(listener);
  }
  // After every picture that was drawn; the moment of the browser's clock, milliseconds.
  onPaint(listener: Listener<number>): void {
    this.#onPaint.push(listener);
  }
  // When the view has not changed for a moment and its own frame is shown: time to say what is in the middle,
  // to write the address.
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

  // The picture as it is on the screen.
  toBlob(type = 'image/png'): Promise<Blob | null> {
    this.#paint();
    return new Promise((resolve) => this.canvas.toBlob(resolve, type));
  }

  #makePainter(): Painter {
    const painter = new Painter(this.#gl, (index) => this.sky.getMap(index));
    painter.globes.onMap = () => this.#schedule();
    return painter;
  }

  // The canvas has the pixels of the device.
  #fit(): void {
    const ratio = window.devicePixelRatio;
    const box = this.canvas.getBoundingClientRect();
    const width = clamp(Math.round(box.width * ratio), 64, 8192);
    const height = clamp(Math.round(box.height * ratio), 64, 8192);
    if (
      width === this.#view.width &&
      height === this.#view.height &&
      this.canvas.width === width &&
      this.canvas.height === height
    )
      return;
    this.canvas.width = width;
    this.canvas.height = height;
    // The scene draws as large as suits the number of pixels; on a phone they are many and small.
    const unit = Math.sqrt((width * height) / kStandardPixels) / ratio;
    this.change({ width, height, enlargement: clamp(kLeastUnit / unit, 1, 8) });
  }

  #take(frame: Frame): void {
    const begin = performance.now();
    this.#frame = frame;
    this.#painter.take(frame.buffer, frame.view.width, frame.view.height);
    Object.assign(this.meter, frame.times, {
      take: performance.now() - begin,
      marks: this.#painter.markCount,
    });
    this.#schedule();
    for (const listener of this.#onFrame) listener(frame);
  }

  #schedule(): void {
    this.#isDirty = true;
    if (this.#isScheduled) return;
    this.#isScheduled = true;
    requestAnimationFrame((now) => this.#tick(now));
  }

  // Goes on from picture to picture until the view has come to rest.
  #tick(now: number): void {
    this.#isScheduled = false;
    if (this.#isDirty) {
      this.#isDirty = false;
      this.#paint();
      for (const listener of this.#onPaint) listener(now);
    }
    if (this.#isRestTold) return;
    if (performance.now() - this.#changed > kRest && this.#frame?.view === this.#lastShown()) {
      this.#isRestTold = true;
      for (const listener of this.#onRest) listener(this.#view);
    } else if (!this.#isScheduled) {
      this.#isScheduled = true;
      requestAnimationFrame((next) => this.#tick(next));
    }
  }

  #lastShown(): View | null {
    const shown = this.#frame?.view;
    const same =
      shown && (Object.keys(shown) as (keyof View)[]).every((key) => shown[key] === this.#view[key]);
    return same ? shown : null;
  }

  #paint(): void {
    if (!this.#frame || this.#gl.isContextLost()) return;
    const begin = performance.now();
    this.#painter.paint(findTurn(this.#frame.view, this.#view));
    this.meter.draw = performance.now() - begin;
    this.meter.drawCalls = this.#painter.drawCalls;
  }
}
