// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import type { FrameTimes, FromWorker, SkyService, ToWorker, View } from './messages';

// A call that the scene refused; the message is its line.
export class SkyError extends Error {}

export interface Frame {
  view: View; // the view that the list shows
  buffer: ArrayBuffer; // the display list (frame_list.ts), gone when the next frame is there
  times: FrameTimes;
}

type Async<Service> = {
  [Name in keyof Service]: Service[Name] extends (...args: infer Args) => infer Answer
    ? (...args: Args) => Promise<Answer>
    : never;
};

interface Waiting {
  resolve(value: unknown): void;
  reject(reason: SkyError): void;
}

// What the page hears of the worker beside the answers of its calls.
export interface SkyEvents {
  onFrame(frame: Frame): void;
  onFrameFailure(text: string): void;
  onLog(text: string): void;
}

// The worker's calls, each with a promise: `await sky.find('Jupiter')`.
export type Sky = Async<SkyService> & {
  // Asks for a frame of the view. One is computed at a time; of several views that wait the last is next. A
  // call that was made before counts already: after a change of settings, `show` with the same view shows it.
  show(view: View): void;
  events: SkyEvents;
};

const kTransferred: Partial<Record<keyof SkyService, number[]>> = { open: [1, 2] };

// Frames go between page and worker in two buffers: one is read here while the other is filled there.
class FrameQueue {
  events: SkyEvents = { onFrame() {}, onFrameFailure() {}, onLog() {} };
  #post: (message: ToWorker, transfer: Transferable[]) => void;
  #isComputing = false;
  #next: View | null = null;
  #shown: ArrayBuffer | null = null;
  #spare: ArrayBuffer | null = null;

  constructor(post: (message: ToWorker, transfer: Transferable[]) => void) {
    this.#post = post;
  }

  show(view: View): void {
    this.#next = view;
    if (!this.#isComputing) this.#ask();
  }

  take(frame: Frame): void {
    this.#isComputing = false;
    this.#spare = this.#shown;
    this.#shown = frame.buffer;
    // The next one is on its way before this one is drawn.
    if (this.#next) this.#ask();
    this.events.onFrame(frame);
  }

  fail(text: string): void {
    this.#isComputing = false;
    this.#spare = null; // it went with the question
    if (this.#next) this.#ask();
    this.events.onFrameFailure(text);
  }

  #ask(): void {
    const buffer = this.#spare;
    this.#isComputing = true;
    this.#spare = null;
    this.#post({ type: 'view', view: this.#next!, buffer }, buffer ? [buffer] : []);
    this.#next = null;
  }
}

export function connectSky(worker: Worker): Sky {
  const waiting = new Map<number, Waiting>();
  let lastId = 0;
  const post = (message: ToWorker, transfer: Transferable[] = []) => worker.postMessage(message, transfer);
  const queue = new FrameQueue(post);

  const call = (name: keyof SkyService, args: unknown[]) =>
    new Promise<unknown>((resolve, reject) => {
      const id = ++lastId;
      waiting.set(id, { resolve, reject });
      post(
        { type: 'call', id, name, args },
        (kTransferred[name] ?? []).map((i) => args[i] as ArrayBuffer),
      );
    });

  const settle = (id: number, how: (call: Waiting) => void) => {
    const asked = waiting.get(id);
    waiting.delete(id);
    if (asked) how(asked);
  };

  worker.onmessage = ({ data }: MessageEvent<FromWorker>) => {
    if (data.type === 'answer') settle(data.id, (asked) => asked.resolve(data.value));
    else if (data.type === 'failure') settle(data.id, (asked) => asked.reject(new SkyError(data.text)));
    else if (data.type === 'frame') queue.take(data);
    else if (data.type === 'frame-failure') queue.fail(data.text);
    else queue.events.onLog(data.text);
  };
  worker.onerror = (event) => {
    for (const asked of waiting.values()) asked.reject(new SkyError(event.message));
    waiting.clear();
  };

  const own = { events: queue.events, show: (view: View) => queue.show(view) };
  return new Proxy(own as Sky, {
    // A promise asks what it is resolved with for `then`.
    get: (target, name) =>
      name in target || typeof name !== 'string' || name === 'then'
        ? Reflect.get(target, name)
        : (...args: unknown[]) => call(name as keyof SkyService, args),
  });
}
