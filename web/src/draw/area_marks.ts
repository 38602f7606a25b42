// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import earcut from 'earcut';
import { type FrameList, kArray, kWords } from '../core/frame_list';
import { type Instances, kMark } from './instances';
import { addStroke } from './line_marks';
import { type Area, type Box, nest, readRings, type Ring } from './rings';

// Polygons of the list as triangles, with strips round them where the edge is soft.

const kOpaque = 0xff;
const kReach = 14; // pixels outwards that a soft edge reaches, times its softness

function addTriangles({ outer, holes }: Area, colour: number, marks: Instances): void {
  const rings = [outer, ...holes];
  const flat: number[] = [];
  const begins: number[] = [];
  for (const ring of rings) {
    begins.push(flat.length / 2);
    for (const number of ring.vertices) flat.push(number);
  }
  const corners = earcut(flat, begins.slice(1));
  for (let i = 0; i < corners.length; i += 3) {
    const mark = marks.add(kMark.triangle, colour);
    for (let k = 0; k < 3; ++k) {
      marks.floats[mark + 2 * k] = flat[2 * corners[i + k]];
      marks.floats[mark + 2 * k + 1] = flat[2 * corners[i + k] + 1];
    }
  }
}

// Strips along the ring's edges, away from the area; at the corners they meet on the bisector.
function addSoftEdge(
  ring: Ring,
  isHole: boolean,
  softness: number,
  colour: number,
  marks: Instances,
): void {
  const side = ring.area > 0 !== isHole ? 1 : -1; // to the right of the way, y down, is outwards
  const floats = ring.vertices;
  const count = floats.length / 2;
  const outwards = new Float32Array(2 * count);
  const point = (i: number) => 2 * ((i + count) % count);
  for (let i = 0; i < count; ++i) {
    const [before, here, behind] = [point(i - 1), point(i), point(i + 1)];
    const normal = (from: number, to: number): [number, number] => {
      const [x, y] = [floats[to] - floats[from], floats[to + 1] - floats[from + 1]];
      const length = Math.hypot(x, y) || 1;
      return [(side * y) / length, (-side * x) / length];
    };
    const [a, b] = [normal(before, here), normal(here, behind)];
    const [x, y] = [a[0] + b[0], a[1] + b[1]];
    const stretch = (2 * kReach * softness) / Math.max(x * x + y * y, 1);
    outwards[2 * i] = floats[here] + x * stretch;
    outwards[2 * i + 1] = floats[here + 1] + y * stretch;
  }
  for (let i = 0; i < count; ++i) {
    const [from, to, out, next] = [point(i), point(i + 1), 2 * i, 2 * ((i + 1) % count)];
    const mark = marks.add(kMark.strip, colour);
    marks.floats.set(
      [
        floats[from],
        floats[from + 1],
        floats[to],
        floats[to + 1],
        outwards[out],
        outwards[out + 1],
        outwards[next],
        outwards[next + 1],
      ],
      mark,
    );
  }
}

// `box`: what a picture of the list can show, with room around it.
export function addPolygons(list: FrameList, first: number, count: number, box: Box, marks: Instances): void {
  const { floats, ints, words } = list;
  for (
    let i = first, at = list.start(kArray.polygons) + first * kWords.polygons;
    i < first + count;
    ++i, at += kWords.polygons
  ) {
    const rings = readRings(list, ints[at], ints[at + 1], box);
    const [colour, edge, softness] = [words[at + 2], words[at + 3], floats[at + 4]];
    const areas = nest(rings);
    marks.nextGroup();
    for (const area of areas) addTriangles(area, colour, marks);
    if (softness > 0) {
      for (const { outer, holes } of areas) {
        addSoftEdge(outer, false, softness, edge, marks);
        for (const hole of holes) addSoftEdge(hole, true, softness, edge, marks);
      }
    } else if (colour >>> 24 === kOpaque) {
      const stroke = { width: 1, dash: 0, colour, isRound: false, isClosed: true, isEdge: true };
      for (const { vertices } of rings) addStroke(vertices, 0, vertices.length / 2, stroke, marks);
    }
  }
}
