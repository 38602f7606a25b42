// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT

// The worker's end of messages.ts.
import type { FromWorker, ToWorker } from './messages';
import { SceneService } from './service';

const post = (message: FromWorker, transfer: Transferable[] = []) => self.postMessage(message, { transfer });
const lineOf = (error: unknown) => (error instanceof Error ? error.message : String(error));

const service = new SceneService((text) => post({ type: 'log', text }));

async function answer(asked: ToWorker & { type: 'call' }): Promise<void> {
  try {
    const called = service[asked.name] as (...args: unknown[]) => unknown;
    post({ type: 'answer', id: asked.id, value: await called.apply(service, asked.args) });
  } catch (error) {
    post({ type: 'failure', id: asked.id, text: lineOf(error) });
  }
}

function compute({ view, buffer: room }: ToWorker & { type: 'view' }): void {
  try {
    const { buffer, ...times } = service.compute(view, room);
    post({ type: 'frame', view, buffer, times }, [buffer]);
  } catch (error) {
    post({ type: 'frame-failure', text: lineOf(error) });
  }
}

self.onmessage = ({ data }: MessageEvent<ToWorker>) => {
  if (data.type === 'call') void answer(data);
  else compute(data);
};
