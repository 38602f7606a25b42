// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import type { FrameTimes, FromWorker, SkyService, ToWorker, View } from './messages';

// A call that the scene refused; the message is its line.
export class SkyError extends Error {}

export interface Frame {
  view: View; // the view that the list shows
  buffer: ArrayBuffer; // the display list (frame_list.ts); goes back to the worker when the next frame is there
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

// What the page knows of the worker beside its calls.
export interface SkyEvents {
  onFrame(frame: Frame): void;
  onMap(index: number, bytes: ArrayBuffer): void;
  onLog(text: string): void;
  onFrameFailure(text: string): void;
}

// The worker's calls, each with a promise: `await sky.find('Jupiter')`.
export type Sky = Async<SkyService> & {
  // Asks for a frame of the view; of several that wait only the last is computed.
  show(view: View): void;
  // Asks for a frame of the same view: a setting, the language or a style has changed.
  refresh(): void;
  // Takes the memory of a frame back.
  release(buffer: ArrayBuffer): void;
  events: SkyEvents;
};

const kTransferred: Partial<Record<keyof SkyService, number[]>> = { open: [1, 2] };

export function connectSky(worker: Worker): Sky {
  const waiting = new Map<number, Waiting>();
  let lastId = 0;
  const events: SkyEvents = { onFrame() {}, onMap() {}, onLog() {}, onFrameFailure() {} };
  const post = (message: ToWorker, transfer: Transferable[] = []) => worker.postMessage(message, transfer);

  const call = (name: keyof SkyService, args: unknown[]) =>
    new Promise<unknown>((resolve, reject) => {
      const id = ++lastId;
      waiting.set(id, { resolve, reject });
      post({ type: 'call', id, name, args }, (kTransferred[name] ?? []).map((i) => args[i] as ArrayBuffer));
    });

  const settle = (id: number, how: (call: Waiting) => void) => {
    const asked = waiting.get(id);
    waiting.delete(id);
    if (asked) how(asked);
  };

  worker.onmessage = ({ data }: MessageEvent<FromWorker>) => {
    if (data.type === 'answer') settle(data.id, (asked) => asked.resolve(data.value));
    else if (data.type === 'failure') settle(data.id, (asked) => asked.reject(new SkyError(data.text)));
    else if (data.type === 'frame') events.onFrame(data);
    else if (data.type === 'frame-failure') events.onFrameFailure(data.text);
    else if (data.type === 'map') events.onMap(data.index, data.bytes);
    else events.onLog(data.text);
  };
  worker.onerror = (event) => {
    for (const asked of waiting.values()) asked.reject(new SkyError(event.message));
    waiting.clear();
  };

  const own = {
    events,
    show: (view: View) => post({ type: 'view', view }),
    refresh: () => post({ type: 'refresh' }),
    release: (buffer: ArrayBuffer) => post({ type: 'buffer', buffer }, [buffer]),
  };
  return new Proxy(own as Sky, {
    // A promise asks what it is resolved with for `then`.
    get: (target, name) =>
      name in target || typeof name !== 'string' || name === 'then'
        ? Reflect.get(target, name)
        : (...args: unknown[]) => call(name as keyof SkyService, args),
  });
}
