// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import type { View } from '../core/messages';

// How the picture of one view becomes that of another while its own frame is not there yet. The projection is
// stereographic: the angle theta from the axis of the view lies scale * tan(theta / 2) pixels from the
// centre. On its plane a turn of the sphere is a Moebius transformation, w' = (u21 + u22 w) / (u11 + u12 w),
// whose four complex numbers are the matrix of SU(2) of the turn: exact, and cheap in a shader.

const kZoomOneAngle = 0.6457718232379; // radians from the middle to a corner at zoom 1
const kRadiansPerDegree = Math.PI / 180;

export type Vector = [number, number, number];

// Pixels of the unit of the plane.
export function findScale({ width, height, zoom }: View): number {
  // The camera halves both sides as integers.
  const halfDiagonal = Math.hypot(Math.floor(width / 2), Math.floor(height / 2));
  return halfDiagonal / Math.tan(kZoomOneAngle / (2 * zoom));
}

// Right, up and forward of a view, on the axes north, east, zenith.
function axesOf({ azimuth, altitude }: Pick<View, 'azimuth' | 'altitude'>): [Vector, Vector, Vector] {
  const a = azimuth * kRadiansPerDegree;
  const h = altitude * kRadiansPerDegree;
  const [ca, sa, ch, sh] = [Math.cos(a), Math.sin(a), Math.cos(h), Math.sin(h)];
  return [
    [-sa, ca, 0],
    [-sh * ca, -sh * sa, ch],
    [ch * ca, ch * sa, sh],
  ];
}

const dot = (a: Vector, b: Vector) => a[0] * b[0] + a[1] * b[1] + a[2] * b[2];

// The unit vector on the axes north, east, zenith that is seen at a pixel, air left out.
export function toHorizon(view: View, x: number, y: number): Vector {
  const scale = findScale(view);
  const u = (x - view.width / 2) / scale;
  const v = (view.height / 2 - y) / scale;
  const square = u * u + v * v;
  const [right, up, forward] = axesOf(view);
  const along = [2 * u, 2 * v, 1 - square].map((part) => part / (1 + square));
  return [0, 1, 2].map((i) => along[0] * right[i] + along[1] * up[i] + along[2] * forward[i]) as Vector;
}

// The pixel of such a vector; far away for what lies behind.
export function toPixel(view: View, direction: Vector): { x: number; y: number } {
  const [right, up, forward] = axesOf(view);
  const scale = findScale(view) / Math.max(1 + dot(direction, forward), 1e-9);
  return {
    x: view.width / 2 + scale * dot(direction, right),
    y: view.height / 2 - scale * dot(direction, up),
  };
}

// Azimuth and altitude of the view, its zoom kept, that has the direction at the pixel; the horizon stays
// level. Where no turn brings it there, near the zenith, the view comes as near as it can.
export function turnTo(
  view: View,
  direction: Vector,
  x: number,
  y: number,
): { azimuth: number; altitude: number } {
  const level = { ...view, azimuth: 0, altitude: 0 };
  const [forward, right, up] = toHorizon(level, x, y);
  // The direction's height is up cos h + forward sin h for a view at altitude h.
  const reach = Math.hypot(up, forward);
  const angle = Math.asin(Math.min(1, Math.max(-1, direction[2] / reach)));
  const phase = Math.atan2(up, forward);
  const wrap = (h: number) => h - 2 * Math.PI * Math.round(h / (2 * Math.PI));
  const current = view.altitude * kRadiansPerDegree;
  const away = (h: number) => Math.abs(h - current) + (Math.abs(h) > Math.PI / 2 ? 10 : 0);
  const [a, b] = [wrap(angle - phase), wrap(Math.PI - angle - phase)];
  const h = Math.min(Math.PI / 2, Math.max(-Math.PI / 2, away(a) <= away(b) ? a : b));
  const aside = Math.atan2(right, forward * Math.cos(h) - up * Math.sin(h));
  const azimuth = (Math.atan2(direction[1], direction[0]) - aside) / kRadiansPerDegree;
  return { azimuth: ((azimuth % 360) + 360) % 360, altitude: h / kRadiansPerDegree };
}

// Azimuth and altitude of a direction.
export function anglesOf([north, east, up]: Vector): { azimuth: number; altitude: number } {
  const azimuth = Math.atan2(east, north) / kRadiansPerDegree;
  return {
    azimuth: (azimuth + 360) % 360,
    altitude: Math.asin(Math.min(1, Math.max(-1, up))) / kRadiansPerDegree,
  };
}

// What the shaders want: the matrix as (u11, u12), (u21, u22), centres and scales of both pictures.
export interface Turn {
  upper: [number, number, number, number];
  lower: [number, number, number, number];
  from: [x: number, y: number, scale: number];
  to: [x: number, y: number, scale: number];
  growth: number; // how much larger things are in the picture turned to
  isStill: boolean; // nothing moves
}

// The quaternion of the turn from the axes of one view to those of the other.
function quaternionBetween(from: View, to: View): [number, number, number, number] {
  const a = axesOf(from);
  const b = axesOf(to);
  const m = b.map((row) => a.map((column) => dot(row, column)));
  const w = Math.sqrt(Math.max(0, 1 + m[0][0] + m[1][1] + m[2][2])) / 2;
  if (w > 1e-3) {
    return [w, (m[2][1] - m[1][2]) / (4 * w), (m[0][2] - m[2][0]) / (4 * w), (m[1][0] - m[0][1]) / (4 * w)];
  }
  // About half a turn: nothing of the old picture is in the new one.
  return [0, 0, 1, 0];
}

export function findTurn(from: View, to: View): Turn {
  const [w, x, y, z] = quaternionBetween(from, to);
  const [scaleFrom, scaleTo] = [findScale(from), findScale(to)];
  return {
    upper: [w, -z, -y, -x],
    lower: [y, -x, w, z],
    from: [from.width / 2, from.height / 2, scaleFrom],
    to: [to.width / 2, to.height / 2, scaleTo],
    growth: scaleTo / scaleFrom,
    isStill:
      from.azimuth === to.azimuth &&
      from.altitude === to.altitude &&
      scaleFrom === scaleTo &&
      from.width === to.width &&
      from.height === to.height,
  };
}
