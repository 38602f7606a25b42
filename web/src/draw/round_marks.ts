// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import { type FrameList, kArray, kWords } from '../core/frame_list';
import { type Instances, kMark } from './instances';

// Points, discs, shadows and gradients of the list as marks. `first`, `count`: of the run.

const kFaded = 0x00ffffff; // the colour without its opacity

// The five words of a glow from `at` on. `grows`: with the picture, as the glow of a disc does.
function addGlow(list: FrameList, at: number, x: number, y: number, grows: boolean, marks: Instances): void {
  const { floats, words } = list;
  if (!(floats[at + 1] > 0)) return;
  marks.nextGroup();
  const mark = marks.add(kMark.glow, words[at + 3], words[at + 4], words[at + 3] & kFaded);
  marks.floats.set([x, y, floats[at], floats[at + 1], floats[at + 2], grows ? 1 : 0], mark);
}

function addCircle(
  marks: Instances,
  colour: number,
  x: number,
  y: number,
  radius: number,
  grows: boolean,
): void {
  marks.nextGroup();
  const mark = marks.add(kMark.circle, colour);
  const { floats } = marks;
  floats[mark] = x;
  floats[mark + 1] = y;
  floats[mark + 2] = radius;
  floats[mark + 3] = grows ? 1 : 0;
}

export function addPoints(list: FrameList, first: number, count: number, marks: Instances): void {
  const { floats, words } = list;
  for (
    let i = first, at = list.start(kArray.points) + first * kWords.points;
    i < first + count;
    ++i, at += kWords.points
  ) {
    addGlow(list, at + 4, floats[at], floats[at + 1], false, marks);
    addCircle(marks, words[at + 3], floats[at], floats[at + 1], floats[at + 2], false);
  }
}

// A disc whose record begins at that word.
export function addDisc(list: FrameList, at: number, marks: Instances): void {
  const { floats, words } = list;
  const [x, y, radius] = floats.subarray(at, at + 3);
  addGlow(list, at + 8, x, y, true, marks);
  addCircle(marks, words[at + 7], x, y, radius, true);
  marks.nextGroup();
  const mark = marks.add(kMark.lit, words[at + 6]);
  marks.floats.set([x, y, radius, floats[at + 5], floats[at + 3], floats[at + 4]], mark);
}

// The glow of a disc alone, for a globe, which is painted over it.
export function addDiscGlow(list: FrameList, at: number, marks: Instances): void {
  addGlow(list, at + 8, list.floats[at], list.floats[at + 1], true, marks);
}

export function addDiscs(list: FrameList, first: number, count: number, marks: Instances): void {
  for (let i = first; i < first + count; ++i)
    addDisc(list, list.start(kArray.discs) + i * kWords.discs, marks);
}

export function addShadows(list: FrameList, first: number, count: number, marks: Instances): void {
  const { floats, words } = list;
  for (
    let i = first, at = list.start(kArray.shadows) + first * kWords.shadows;
    i < first + count;
    ++i, at += kWords.shadows
  ) {
    marks.nextGroup();
    const mark = marks.add(kMark.shadow, words[at + 8], words[at + 9], words[at + 10]);
    marks.floats.set(floats.subarray(at, at + 5), mark);
    marks.floats[mark + 5] = 1;
    marks.floats.set(floats.subarray(at + 5, at + 8), mark + 8);
  }
}

export function addGradients(list: FrameList, first: number, count: number, marks: Instances): void {
  const { floats, words } = list;
  for (
    let i = first, at = list.start(kArray.gradients) + first * kWords.gradients;
    i < first + count;
    ++i, at += kWords.gradients
  ) {
    marks.nextGroup();
    const mark = marks.add(kMark.gradient, words[at + 13], words[at + 14], words[at + 15]);
    for (let corner = 0; corner < 4; ++corner) {
      marks.floats[mark + 2 * corner] = floats[at + corner];
      marks.floats[mark + 2 * corner + 1] = floats[at + 4 + corner];
    }
    marks.floats.set(floats.subarray(at + 8, at + 12), mark + 8);
    marks.floats[mark + 12] = floats[at + 12];
  }
}
