// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import { type FrameList, kArray, kWords } from '../core/frame_list';
import { type Instances, kMark } from './instances';
import type { LabelAtlas } from './label_atlas';

// Texts of the list as pictures of the atlas.
export function addTexts(
  list: FrameList,
  first: number,
  count: number,
  atlas: LabelAtlas,
  marks: Instances,
): void {
  const { floats, words } = list;
  for (
    let i = first, at = list.start(kArray.texts) + first * kWords.texts;
    i < first + count;
    ++i, at += kWords.texts
  ) {
    const label = atlas.find(list.text(at), floats[at + 3], words[at + 6]);
    if (!label) continue;
    marks.nextGroup();
    const mark = marks.add(kMark.label, words[at + 7]);
    const numbers = marks.floats;
    numbers[mark] = floats[at];
    numbers[mark + 1] = floats[at + 1];
    // What is beside the anchor is whole pixels, so that a text at rest is as crisp as its picture.
    numbers[mark + 2] = label.left - Math.round(floats[at + 2] * label.advance);
    numbers[mark + 3] = label.top;
    numbers[mark + 4] = label.width;
    numbers[mark + 5] = label.height;
    numbers[mark + 6] = label.x;
    numbers[mark + 7] = label.y;
    numbers[mark + 8] = marks.isFixed ? 1 : 0;
  }
}
