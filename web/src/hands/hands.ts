// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import type { Stage } from '../draw/stage';
import { anglesOf, findScale, toHorizon, turnTo, type Vector } from '../draw/turn';
import { Mover } from './mover';

interface Finger {
  x: number; // pixels of the view
  y: number;
}

type Tap = (x: number, y: number, event: PointerEvent) => void;

const kTapReach = 5; // pixels of the page within which a press is a tap
const kThrowMemory = 90; // milliseconds before letting go that make the speed
const kDoubleTap = 350; // milliseconds
const kCentre = 400; // milliseconds to what was double clicked
const kWheelPerDoubling = 400; // of the wheel's pixels
const kLinePixels = 16;

const isOf = (event: Event, canvas: HTMLElement) =>
  event.target === canvas || event.target === document.body || event.target === document.documentElement;

// Mouse, fingers and keys on the sky. A drag keeps the point of the sky under the pointer, so do wheel and
// pinch; the horizon stays level.
export class Hands {
  readonly mover: Mover;
  // A press that did not move: an object is meant. Pixels of the view.
  onTap: Tap = () => {};
  #stage: Stage;
  #fingers = new Map<number, Finger>();
  #held: Vector | null = null;
  #pinch = { distance: 1, zoom: 1 };
  #trail: { x: number; y: number; at: number }[] = [];
  #pressed = { x: 0, y: 0, isTap: false };
  #lastTap = { x: 0, y: 0, at: -Infinity };

  constructor(stage: Stage) {
    this.#stage = stage;
    this.mover = new Mover(stage);
    const { canvas } = stage;
    canvas.addEventListener('pointerdown', (event) => this.#press(event));
    canvas.addEventListener('pointermove', (event) => this.#move(event));
    canvas.addEventListener('pointerup', (event) => this.#release(event, true));
    canvas.addEventListener('pointercancel', (event) => this.#release(event, false));
    canvas.addEventListener('wheel', (event) => this.#wheel(event), { passive: false });
    document.addEventListener('keydown', (event) => this.#key(event));
  }

  #press(event: PointerEvent): void {
    if (event.button !== 0) return;
    this.mover.stop();
    this.#stage.canvas.setPointerCapture(event.pointerId);
    this.#stage.canvas.focus({ preventScroll: true });
    this.#fingers.set(event.pointerId, this.#stage.toPixels(event.clientX, event.clientY));
    this.#pressed = { x: event.clientX, y: event.clientY, isTap: this.#fingers.size === 1 };
    this.#hold();
  }

  // Holds the direction under the finger, or between two of them.
  #hold(): void {
    this.#trail = [];
    if (this.#fingers.size === 0) {
      this.#held = null;
      return;
    }
    const { x, y, distance } = this.#middle();
    this.#held = toHorizon(this.#stage.view, x, y);
    this.#pinch = { distance, zoom: this.#stage.view.zoom };
  }

  #middle(): { x: number; y: number; distance: number } {
    const [a, b = a] = [...this.#fingers.values()];
    return {
      x: (a.x + b.x) / 2,
      y: (a.y + b.y) / 2,
      distance: Math.max(1, Math.hypot(a.x - b.x, a.y - b.y)),
    };
  }

  #move(event: PointerEvent): void {
    if (!this.#fingers.has(event.pointerId) || !this.#held) return;
    this.#fingers.set(event.pointerId, this.#stage.toPixels(event.clientX, event.clientY));
    if (Math.hypot(event.clientX - this.#pressed.x, event.clientY - this.#pressed.y) > kTapReach)
      this.#pressed.isTap = false;
    if (this.#pressed.isTap) return;
    const { x, y, distance } = this.#middle();
    const zoom =
      this.#fingers.size > 1 ? (this.#pinch.zoom * distance) / this.#pinch.distance : this.#stage.view.zoom;
    this.#trail.push({ x, y, at: event.timeStamp });
    this.#stage.change({ zoom, ...turnTo({ ...this.#stage.view, zoom }, this.#held, x, y) });
  }

  #release(event: PointerEvent, isDone: boolean): void {
    const finger = this.#fingers.get(event.pointerId);
    if (!finger) return;
    this.#fingers.delete(event.pointerId);
    if (this.#fingers.size > 0) {
      this.#hold();
      return;
    }
    if (isDone && this.#pressed.isTap) this.#tap(finger, event);
    else if (isDone && this.#held) this.#letGo(event.timeStamp, this.#held);
    this.#held = null;
  }

  #letGo(now: number, held: Vector): void {
    const recent = this.#trail.filter(({ at }) => now - at < kThrowMemory);
    if (recent.length < 2) return;
    const [first, last] = [recent[0], recent[recent.length - 1]];
    const passed = Math.max(last.at - first.at, 8);
    this.mover.throw(held, last.x, last.y, (last.x - first.x) / passed, (last.y - first.y) / passed);
  }

  #tap({ x, y }: Finger, event: PointerEvent): void {
    const isSecond =
      event.timeStamp - this.#lastTap.at < kDoubleTap &&
      Math.hypot(x - this.#lastTap.x, y - this.#lastTap.y) < 30;
    this.#lastTap = { x, y, at: isSecond ? -Infinity : event.timeStamp };
    if (isSecond) this.mover.glide(anglesOf(toHorizon(this.#stage.view, x, y)), kCentre);
    else this.onTap(x, y, event);
  }

  #wheel(event: WheelEvent): void {
    event.preventDefault();
    const pixels = event.deltaY * (event.deltaMode === WheelEvent.DOM_DELTA_LINE ? kLinePixels : 1);
    // A pinch on a touchpad comes as a wheel with the control key, in small steps.
    const doublings = -pixels / (event.ctrlKey ? kWheelPerDoubling / 4 : kWheelPerDoubling);
    const { x, y } = this.#stage.toPixels(event.clientX, event.clientY);
    const zoom = Math.min(10000, Math.max(0.25, this.mover.aim.zoom * 2 ** doublings));
    this.mover.zoomAt(toHorizon(this.#stage.view, x, y), x, y, zoom);
  }

  #key(event: KeyboardEvent): void {
    if (!isOf(event, this.#stage.canvas) || event.ctrlKey || event.altKey || event.metaKey) return;
    const { view } = this.#stage;
    const across = (2 * Math.atan(view.width / 2 / findScale(view)) * 180) / Math.PI;
    const step = Math.min(30, across) * (event.shiftKey ? 0.02 : 0.15);
    const { azimuth, altitude, zoom } = this.mover.aim;
    const aside = step / Math.max(0.1, Math.cos((altitude * Math.PI) / 180));
    const moves: Record<string, Partial<{ azimuth: number; altitude: number; zoom: number }>> = {
      ArrowLeft: { azimuth: azimuth - aside },
      ArrowRight: { azimuth: azimuth + aside },
      ArrowUp: { altitude: altitude + step },
      ArrowDown: { altitude: altitude - step },
      '+': { zoom: zoom * 1.25 },
      '=': { zoom: zoom * 1.25 },
      '-': { zoom: zoom / 1.25 },
    };
    const move = moves[event.key];
    if (!move) return;
    event.preventDefault();
    this.mover.glide(move);
  }
}
