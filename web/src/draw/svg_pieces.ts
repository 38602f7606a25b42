// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import type { FrameList } from '../core/frame_list';
import { kArray } from '../core/frame_list';

const hex = (value: number): string => (value & 255).toString(16).padStart(2, '0');

// A colour as it lies in the list: red in the lowest byte, opacity in the highest.
const nameOf = (word: number): string => `#${hex(word)}${hex(word >>> 8)}${hex(word >>> 16)}`;
const opacityOf = (word: number): number => Number(((word >>> 24) / 255).toFixed(4));

// 'fill="#c8d7ff" fill-opacity="0.5"'
export function textOfColour(what: 'fill' | 'stroke', word: number): string {
  const opacity = opacityOf(word);
  return `${what}="${nameOf(word)}"${opacity < 1 ? ` ${what}-opacity="${opacity}"` : ''}`;
}

export const withStop = (offset: number, word: number): string =>
  `<stop offset="${offset}" stop-color="${nameOf(word)}" stop-opacity="${opacityOf(word)}"/>`;

export function pathOf(list: FrameList, first: number, count: number, isClosed: boolean): string {
  const at = list.start(kArray.vertices) + 2 * first;
  let path = '';
  for (let i = 0; i < count; ++i) {
    path += `${i ? 'L' : 'M'}${list.floats[at + 2 * i].toFixed(2)} ${list.floats[at + 2 * i + 1].toFixed(2)}`;
  }
  return isClosed && count ? `${path}z` : path;
}
