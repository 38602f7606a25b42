// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT

// A display list in one buffer: a header, then the arrays, each as docs/formats/display_list.md has its
// records, at an offset that is a multiple of four. The header is for every array, in the order of
// `kArrayKinds`, the count of its records and the index of its first 32-bit word.

export const kArray = {
  points: 0,
  discs: 1,
  shadows: 2,
  polylines: 3,
  ellipses: 4,
  polygons: 5,
  gradients: 6,
  texts: 7,
  meshes: 8,
  globes: 9,
  runs: 100,
  rings: 101,
  vertices: 102,
  colours: 103,
  textBytes: 104,
} as const;

export const kArrayKinds: readonly number[] = Object.values(kArray);

// 32-bit words of a record.
export const kWords = {
  points: 11,
  discs: 15,
  shadows: 13,
  polylines: 8,
  ellipses: 10,
  polygons: 7,
  gradients: 18,
  texts: 10,
  meshes: 9,
  globes: 32,
  runs: 4,
  rings: 2,
  vertices: 2,
} as const;

const kHeaderWords = 2 * kArrayKinds.length;

// What an array is in somebody else's memory.
export interface Source {
  count: number;
  bytes: Uint8Array;
}

// How many bytes a list of these arrays takes.
export function measureList(sources: Source[]): number {
  return sources.reduce((sum, { bytes }) => sum + Math.ceil(bytes.length / 4) * 4, kHeaderWords * 4);
}

// Writes the arrays, in the order of `kArrayKinds`, into a buffer that has room for them.
export function writeList(sources: Source[], buffer: ArrayBuffer): void {
  const words = new Uint32Array(buffer);
  const target = new Uint8Array(buffer);
  let at = kHeaderWords;
  sources.forEach(({ count, bytes }, i) => {
    words[2 * i] = count;
    words[2 * i + 1] = at;
    target.set(bytes, at * 4);
    at += Math.ceil(bytes.length / 4);
  });
}

// Reads such a buffer. Records are addressed by words: word w of record i of points is `start(kArray.points)
// + 11 * i + w` in one of the three views.
export class FrameList {
  readonly floats: Float32Array;
  readonly ints: Int32Array;
  readonly words: Uint32Array;
  readonly bytes: Uint8Array;

  constructor(buffer: ArrayBuffer) {
    this.floats = new Float32Array(buffer);
    this.ints = new Int32Array(buffer);
    this.words = new Uint32Array(buffer);
    this.bytes = new Uint8Array(buffer);
  }

  count(kind: number): number {
    return this.words[2 * kArrayKinds.indexOf(kind)];
  }
  start(kind: number): number {
    return this.words[2 * kArrayKinds.indexOf(kind) + 1];
  }

  // The UTF-8 bytes of a text record that begins at that word.
  text(record: number): string {
    const from = this.start(kArray.textBytes) * 4 + this.ints[record + 4];
    return kDecoder.decode(this.bytes.subarray(from, from + this.ints[record + 5]));
  }
}

const kDecoder = new TextDecoder();
