// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT

// The worker's end of messages.ts.
import type { FromWorker, ToWorker } from './messages';

const post = (message: FromWorker, transfer: Transferable[] = []) => self.postMessage(message, { transfer });

self.onmessage = ({ data }: MessageEvent<ToWorker>) => {
  if (data.type === 'call') post({ type: 'failure', id: data.id, text: `${data.name}: no scene` });
};
