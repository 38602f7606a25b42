// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import earcut from 'earcut';
import { type FrameList, kArray, kWords } from '../core/frame_list';
import { type Instances, kMark } from './instances';
import { addStroke } from './line_marks';

// Polygons of the list as triangles, with strips round them where the edge is soft.

interface Ring {
  at: number; // of its first vertex in the list's numbers
  count: number;
  area: number; // signed
  box: [left: number, top: number, right: number, bottom: number];
}

const kOpaque = 0xff;
const kReach = 14; // pixels outwards that a soft edge reaches, times its softness

function readRing(list: FrameList, ring: number): Ring {
  const record = list.start(kArray.rings) + ring * kWords.rings;
  const at = list.start(kArray.vertices) + 2 * list.ints[record];
  const count = list.ints[record + 1];
  const { floats } = list;
  const box: Ring['box'] = [Infinity, Infinity, -Infinity, -Infinity];
  let area = 0;
  for (let i = 0; i < count; ++i) {
    const [x, y] = [floats[at + 2 * i], floats[at + 2 * i + 1]];
    const next = at + 2 * ((i + 1) % count);
    area += x * floats[next + 1] - floats[next] * y;
    box[0] = Math.min(box[0], x);
    box[1] = Math.min(box[1], y);
    box[2] = Math.max(box[2], x);
    box[3] = Math.max(box[3], y);
  }
  return { at, count, area: area / 2, box };
}

function holds(floats: Float32Array, ring: Ring, x: number, y: number): boolean {
  if (x < ring.box[0] || x > ring.box[2] || y < ring.box[1] || y > ring.box[3]) return false;
  let isIn = false;
  for (let i = 0, before = ring.count - 1; i < ring.count; before = i++) {
    const [x0, y0] = [floats[ring.at + 2 * i], floats[ring.at + 2 * i + 1]];
    const [x1, y1] = [floats[ring.at + 2 * before], floats[ring.at + 2 * before + 1]];
    if (y0 > y !== y1 > y && x < ((x1 - x0) * (y - y0)) / (y1 - y0) + x0) isIn = !isIn;
  }
  return isIn;
}

// The rings in groups of one that bounds an area and the holes in it, by the even-odd rule: a ring inside an
// odd number of others bounds a hole of the smallest of them.
function nest(floats: Float32Array, rings: Ring[]): { outer: Ring; holes: Ring[] }[] {
  if (rings.length === 1) return [{ outer: rings[0], holes: [] }];
  const around = rings.map((ring) =>
    rings.filter((other) => other !== ring && holds(floats, other, floats[ring.at], floats[ring.at + 1])),
  );
  const groups = new Map<Ring, Ring[]>();
  rings.forEach((ring, i) => {
    if (around[i].length % 2 === 0) groups.set(ring, []);
  });
  rings.forEach((ring, i) => {
    if (around[i].length % 2 === 0) return;
    const container = around[i].reduce((a, b) => (Math.abs(a.area) < Math.abs(b.area) ? a : b));
    groups.get(container)?.push(ring);
  });
  return [...groups].map(([outer, holes]) => ({ outer, holes }));
}

function addTriangles(
  floats: Float32Array,
  outer: Ring,
  holes: Ring[],
  colour: number,
  marks: Instances,
): void {
  const rings = [outer, ...holes];
  const flat: number[] = [];
  const begins: number[] = [];
  for (const ring of rings) {
    begins.push(flat.length / 2);
    for (let i = 0; i < 2 * ring.count; ++i) flat.push(floats[ring.at + i]);
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
  floats: Float32Array,
  ring: Ring,
  isHole: boolean,
  softness: number,
  colour: number,
  marks: Instances,
): void {
  const side = ring.area > 0 !== isHole ? 1 : -1; // to the right of the way, y down, is outwards
  const outwards = new Float32Array(2 * ring.count);
  const point = (i: number) => ring.at + 2 * ((i + ring.count) % ring.count);
  for (let i = 0; i < ring.count; ++i) {
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
  for (let i = 0; i < ring.count; ++i) {
    const [from, to, out, next] = [point(i), point(i + 1), 2 * i, 2 * ((i + 1) % ring.count)];
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

export function addPolygons(list: FrameList, first: number, count: number, marks: Instances): void {
  const { floats, ints, words } = list;
  for (
    let i = first, at = list.start(kArray.polygons) + first * kWords.polygons;
    i < first + count;
    ++i, at += kWords.polygons
  ) {
    const rings = Array.from({ length: ints[at + 1] }, (_, k) => readRing(list, ints[at] + k)).filter(
      (ring) => ring.count > 2,
    );
    const [colour, edge, softness] = [words[at + 2], words[at + 3], floats[at + 4]];
    const groups = nest(floats, rings);
    marks.nextGroup();
    for (const { outer, holes } of groups) addTriangles(floats, outer, holes, colour, marks);
    if (softness > 0) {
      for (const { outer, holes } of groups) {
        addSoftEdge(floats, outer, false, softness, edge, marks);
        for (const hole of holes) addSoftEdge(floats, hole, true, softness, edge, marks);
      }
    } else if (colour >>> 24 === kOpaque) {
      const stroke = { width: 1, dash: 0, colour, isRound: false, isClosed: true, isEdge: true };
      for (const ring of rings) addStroke(floats, ring.at, ring.count, stroke, marks);
    }
  }
}
