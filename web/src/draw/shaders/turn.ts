// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT

// Pixels of the frame to those of the view (draw/turn.ts), and pixels to clip space. `uStill`: nothing moves,
// so that pixels stay as they are to the bit. Both y axes count downwards, the plane's upwards.
export const kTurnFunctions = `
uniform vec4 uUpper, uLower;
uniform vec3 uFrom, uTo;
uniform vec2 uSize;
uniform float uGrowth;
uniform bool uStill;

vec2 times(vec2 a, vec2 b) { return vec2(a.x * b.x - a.y * b.y, a.x * b.y + a.y * b.x); }

vec2 turned(vec2 p) {
  if (uStill) return p;
  vec2 w = vec2(p.x - uFrom.x, uFrom.y - p.y) / uFrom.z;
  vec2 above = uLower.xy + times(uLower.zw, w);
  vec2 below = uUpper.xy + times(uUpper.zw, w);
  vec2 q = times(above, vec2(below.x, -below.y)) / max(dot(below, below), 1e-12) * uTo.z;
  return vec2(uTo.x + q.x, uTo.y - q.y);
}

vec4 toClip(vec2 p, float depth) {
  return vec4(2.0 * p.x / uSize.x - 1.0, 1.0 - 2.0 * p.y / uSize.y, depth, 1.0);
}
`;
