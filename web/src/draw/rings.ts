// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import { type FrameList, kArray, kWords } from '../core/frame_list';

// The rings that bound the areas of a display list, as far as a picture shows them.

export interface Ring {
  vertices: Float32Array; // x y one after the other
  area: number; // signed
  box: Box;
}

export type Box = [left: number, top: number, right: number, bottom: number];

function measure(vertices: Float32Array): Ring {
  const box: Box = [Infinity, Infinity, -Infinity, -Infinity];
  let area = 0;
  for (let i = 0; i < vertices.length; i += 2) {
    const [x, y] = [vertices[i], vertices[i + 1]];
    const next = (i + 2) % vertices.length;
    area += x * vertices[next + 1] - vertices[next] * y;
    box[0] = Math.min(box[0], x);
    box[1] = Math.min(box[1], y);
    box[2] = Math.max(box[2], x);
    box[3] = Math.max(box[3], y);
  }
  return { vertices, area: area / 2, box };
}

// What of the ring lies on one side of a line: where sign * (x or y) is at most sign * limit.
function clipSide(vertices: Float32Array, axis: 0 | 1, sign: 1 | -1, limit: number): Float32Array {
  const kept: number[] = [];
  const count = vertices.length / 2;
  for (let i = 0; i < count; ++i) {
    const [from, to] = [2 * i, 2 * ((i + 1) % count)];
    const [a, b] = [sign * (vertices[from + axis] - limit), sign * (vertices[to + axis] - limit)];
    if (a <= 0) kept.push(vertices[from], vertices[from + 1]);
    if (a <= 0 === b <= 0) continue;
    const part = a / (a - b);
    const point = [0, 1].map((k) => vertices[from + k] + part * (vertices[to + k] - vertices[from + k]));
    point[axis] = limit;
    kept.push(point[0], point[1]);
  }
  return Float32Array.from(kept);
}

function clip(ring: Ring, box: Box): Ring {
  let { vertices } = ring;
  if (ring.box[0] < box[0]) vertices = clipSide(vertices, 0, -1, box[0]);
  if (ring.box[1] < box[1]) vertices = clipSide(vertices, 1, -1, box[1]);
  if (ring.box[2] > box[2]) vertices = clipSide(vertices, 0, 1, box[2]);
  if (ring.box[3] > box[3]) vertices = clipSide(vertices, 1, 1, box[3]);
  return vertices === ring.vertices ? ring : measure(vertices);
}

// `count` rings of the list from the first one on, the largest first, without what lies outside the box: there
// rings run along the rim of the view, back and forth, which no triangles can fill. Each is cut a pixel closer
// than the one before, so that none touches another along the cut.
export function readRings(list: FrameList, first: number, count: number, box: Box): Ring[] {
  const rings = Array.from({ length: count }, (_, k) => {
    const record = list.start(kArray.rings) + (first + k) * kWords.rings;
    const at = list.start(kArray.vertices) + 2 * list.ints[record];
    return measure(list.floats.subarray(at, at + 2 * list.ints[record + 1]));
  });
  return rings
    .sort((a, b) => Math.abs(b.area) - Math.abs(a.area))
    .map((ring, i) => clip(ring, [box[0] + i, box[1] + i, box[2] - i, box[3] - i]))
    .filter((ring) => ring.vertices.length >= 6);
}

function holds({ vertices, box }: Ring, x: number, y: number): boolean {
  if (x < box[0] || x > box[2] || y < box[1] || y > box[3]) return false;
  let isIn = false;
  for (let i = 0, before = vertices.length - 2; i < vertices.length; before = i, i += 2) {
    const [x0, y0] = [vertices[i], vertices[i + 1]];
    const [x1, y1] = [vertices[before], vertices[before + 1]];
    if (y0 > y !== y1 > y && x < ((x1 - x0) * (y - y0)) / (y1 - y0) + x0) isIn = !isIn;
  }
  return isIn;
}

export interface Area {
  outer: Ring;
  holes: Ring[];
}

// The rings in groups of one that bounds an area and the holes in it, by the even-odd rule: a ring inside an
// odd number of others bounds a hole of the smallest of them.
export function nest(rings: Ring[]): Area[] {
  const around = rings.map((ring) =>
    rings.filter((other) => other !== ring && holds(other, ring.vertices[0], ring.vertices[1])),
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
