// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT

// The worker's end of messages.ts.
import type { FromWorker, ToWorker } from './messages';
import { PanelCalls } from './panel_calls';
import { SceneService } from './service';

const post = (message: FromWorker, transfer: Transferable[] = []) => self.postMessage(message, { transfer });
const lineOf = (error: unknown) => (error instanceof Error ? error.message : String(error));

const service = new SceneService((text) => post({ type: 'log', text }));
const panels = new PanelCalls(service);

type Calls = Record<string, (...args: unknown[]) => unknown>;

async function answer(asked: ToWorker & { type: 'call' }): Promise<void> {
  try {
    const answerer = (asked.name in service ? service : panels) as unknown as Calls;
    post({ type: 'answer', id: asked.id, value: await answerer[asked.name](...asked.args) });
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
