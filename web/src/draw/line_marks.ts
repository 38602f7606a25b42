// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import { type FrameList, kArray, kWords } from '../core/frame_list';
import { type Instances, kMark } from './instances';
import { kSegment } from './shaders/mark';

// Polylines and ellipses of the list as segments.

const kClosed = 1;
const kRoundEnds = 2;

export interface Stroke {
  width: number;
  dash: number;
  colour: number;
  isRound: boolean;
  isClosed: boolean;
  isEdge: boolean; // of an area: half a pixel outwards, for a smooth edge
}

// The line through `count` vertices, x y one after the other from `at` on.
export function addStroke(
  vertices: Float32Array,
  at: number,
  count: number,
  stroke: Stroke,
  marks: Instances,
): void {
  const segments = stroke.isClosed ? count : count - 1;
  const wrap = (i: number) => at + 2 * ((i + count) % count);
  let walked = 0;
  for (let i = 0; i < segments; ++i) {
    const [from, to, before, behind] = [wrap(i), wrap(i + 1), wrap(i - 1), wrap(i + 2)];
    const hasBefore = stroke.isClosed || i > 0;
    const hasBehind = stroke.isClosed || i + 1 < segments;
    const length = Math.hypot(vertices[to] - vertices[from], vertices[to + 1] - vertices[from + 1]);
    if (!(length > 0)) continue;
    marks.nextGroup();
    const mark = marks.add(kMark.segment, stroke.colour);
    const { floats } = marks;
    floats[mark] = vertices[from];
    floats[mark + 1] = vertices[from + 1];
    floats[mark + 2] = vertices[to];
    floats[mark + 3] = vertices[to + 1];
    floats[mark + 4] = vertices[before];
    floats[mark + 5] = vertices[before + 1];
    floats[mark + 6] = vertices[behind];
    floats[mark + 7] = vertices[behind + 1];
    floats[mark + 8] = stroke.width;
    floats[mark + 9] = stroke.dash;
    floats[mark + 10] = walked;
    floats[mark + 11] = walked += length;
    floats[mark + 12] =
      (hasBefore ? kSegment.hasBefore : 0) +
      (hasBehind ? kSegment.hasBehind : 0) +
      (stroke.isRound ? kSegment.round : 0) +
      (stroke.isEdge ? kSegment.edge : 0);
  }
}

export function addPolylines(list: FrameList, first: number, count: number, marks: Instances): void {
  const { floats, ints, words } = list;
  const vertices = list.start(kArray.vertices);
  for (
    let i = first, at = list.start(kArray.polylines) + first * kWords.polylines;
    i < first + count;
    ++i, at += kWords.polylines
  ) {
    const flags = words[at + 5];
    const stroke = {
      width: floats[at + 2],
      dash: floats[at + 3],
      colour: words[at + 4],
      isRound: (flags & kRoundEnds) !== 0,
      isClosed: (flags & kClosed) !== 0,
      isEdge: false,
    };
    addStroke(floats, vertices + 2 * ints[at], ints[at + 1], stroke, marks);
  }
}

// As many corners as the eye takes for a curve.
const cornersOf = (radius: number) => Math.min(256, Math.max(12, Math.ceil(8 * Math.sqrt(radius))));

export function addEllipses(list: FrameList, first: number, count: number, marks: Instances): void {
  const { floats, words } = list;
  for (
    let i = first, at = list.start(kArray.ellipses) + first * kWords.ellipses;
    i < first + count;
    ++i, at += kWords.ellipses
  ) {
    const [x, y, major, minor, angle, width, dash] = floats.subarray(at, at + 7);
    const corners = cornersOf(major);
    const vertices = new Float32Array(2 * corners);
    const [cosine, sine] = [Math.cos(angle), Math.sin(angle)];
    for (let corner = 0; corner < corners; ++corner) {
      const turn = (2 * Math.PI * corner) / corners;
      const [u, v] = [major * Math.cos(turn), minor * Math.sin(turn)];
      vertices[2 * corner] = x + u * cosine - v * sine;
      vertices[2 * corner + 1] = y + u * sine + v * cosine;
    }
    const stroke = { width, dash, colour: words[at + 7], isRound: false, isClosed: true, isEdge: false };
    addStroke(vertices, 0, corners, stroke, marks);
  }
}
