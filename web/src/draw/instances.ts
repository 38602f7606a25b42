// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT

// Everything but meshes and globes is painted as quads of one shader, in the order of the list: an instance
// is a kind of mark, sixteen numbers and three colours. What the numbers mean to a kind stands in
// shaders/mark.ts. Colours are the list's words: red in the lowest byte, opacity in the highest.

export const kMark = {
  circle: 0,
  glow: 1,
  shadow: 2,
  lit: 3,
  segment: 4,
  triangle: 5,
  strip: 6,
  gradient: 7,
  label: 8,
};

export const kInstanceBytes = 80;
const kInstanceWords = kInstanceBytes / 4;

export class Instances {
  count = 0;
  floats = new Float32Array(kInstanceWords * 4096);
  words = new Uint32Array(this.floats.buffer);
  // Marks of one group cover a pixel once. It counts from 1 on.
  group = 0;
  // Whether what is added stands on the screen and does not turn with the sky.
  isFixed = false;

  clear(): void {
    this.count = 0;
    this.group = 0;
    this.isFixed = false;
  }

  // Begins a group: what is added until the next one paints no pixel twice.
  nextGroup(): void {
    ++this.group;
  }

  // Adds a mark; returns the index of its first word, from which on the caller writes the numbers that the
  // kind has.
  add(kind: number, colour: number, second = 0, third = 0): number {
    const at = this.count++ * kInstanceWords;
    if (at + kInstanceWords > this.floats.length) this.#grow();
    this.floats[at + 15] = this.isFixed ? 1 : 0;
    this.words[at + 16] = colour;
    this.words[at + 17] = second;
    this.words[at + 18] = third;
    this.words[at + 19] = kind | (this.group << 4);
    return at;
  }

  get bytes(): Uint8Array {
    return new Uint8Array(this.floats.buffer, 0, this.count * kInstanceBytes);
  }

  #grow(): void {
    const floats = new Float32Array(this.floats.length * 2);
    floats.set(this.floats);
    this.floats = floats;
    this.words = new Uint32Array(floats.buffer);
  }
}
