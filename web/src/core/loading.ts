// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT

// The files that the sky is made of, loaded with a bar.

export interface Loaded {
  module: ArrayBuffer;
  pack: ArrayBuffer;
}

type Progress = (part: number) => void;

async function load(name: string, onBytes: (bytes: number, all: number) => void): Promise<ArrayBuffer> {
  const complain = (why: string) => new Error(`${name} cannot be loaded: ${why}`);
  const answer = await fetch(new URL(name, document.baseURI)).catch(() => {
    throw complain('no connection');
  });
  if (!answer.ok || !answer.body) throw complain(`the server says ${answer.status}`);
  const all = Number(answer.headers.get('content-length')) || 0;
  const parts: Uint8Array<ArrayBuffer>[] = [];
  let bytes = 0;
  for (const reader = answer.body.getReader(); ;) {
    const { done, value } = await reader.read().catch(() => {
      throw complain('the connection broke');
    });
    if (done) break;
    parts.push(value);
    bytes += value.length;
    onBytes(bytes, all);
  }
  return new Blob(parts).arrayBuffer();
}

// Module and data, both compressed. Rejects with one line for the page.
export async function loadFiles(onProgress: Progress): Promise<Loaded> {
  const loaded = [0, 0];
  const sizes = [1e6, 5e6]; // until the server says them
  const count = (file: number) => (bytes: number, all: number) => {
    loaded[file] = bytes;
    sizes[file] = Math.max(all, bytes, sizes[file] * (all ? 0 : 1));
    onProgress(Math.min(1, (loaded[0] + loaded[1]) / (sizes[0] + sizes[1])));
  };
  const [module, pack] = await Promise.all([load('scene.wasm.gz', count(0)), load('sky.pack', count(1))]);
  return { module, pack };
}
