// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import { kTurnFunctions } from './turn';

// The numbers of each kind, a b c d of four each; colours c0 c1 c2:
//
//   circle    a: x y radius, a.w 1: the radius grows with the picture       c0
//   glow      a: x y inner outer, b: middle, b.y 1: grows                   c0 inner, c1 middle, c2 outer
//   shadow    as glow, c: x y radius of the disc that it falls on
//   lit       a: x y radius cosPhase, b: x y of the unit vector to the Sun  c0
//   segment   a: from to, b: before and behind, c: width dash lengths-at-the-ends, d: flags, see kSegment
//   triangle  a: corners 1 and 2, b: corner 3                               c0
//   strip     a: from to of the edge, b: the same outwards, c: softness     c0
//   gradient  a b: corners, c: from to, d: middle                           c0, c1, c2
//   label     a: x y of the anchor, left and top edge from there, b: size and place in the atlas,
//             c: 1 whole pixels even while it moves                            c0
//
// d.w is 1 for what stands on the screen and does not turn with the sky.
export const kSegment = { hasBefore: 1, hasBehind: 2, round: 4, edge: 8 };

export const kMarkVertex = `#version 300 es
precision highp float;
layout(location = 0) in vec4 a;
layout(location = 1) in vec4 b;
layout(location = 2) in vec4 c;
layout(location = 3) in vec4 d;
layout(location = 4) in uvec4 marks;
${kTurnFunctions}
flat out int kind;
flat out vec4 A, B, C, D;
flat out vec4 c0, c1, c2;
out vec2 place;

vec4 colourOf(uint word) {
  return vec4(uvec4(word, word >> 8u, word >> 16u, word >> 24u) & 255u) / 255.0;
}
vec2 moved(vec2 p) { return d.w > 0.5 ? p : turned(p); }
vec2 across(vec2 v) { return vec2(-v.y, v.x); }
vec2 direction(vec2 v, vec2 other) { float l = length(v); return l > 1e-6 ? v / l : other; }

// The corner of a segment at one of its ends: on the bisector where a neighbour follows.
vec2 cornerOf(vec2 here, vec2 along, bool joins, vec2 neighbour, float outwards, float side, float reach,
              float beyond) {
  vec2 n = across(along);
  if (joins) {
    vec2 onwards = direction((neighbour - here) * outwards, along);
    vec2 m = direction(n + across(onwards), n);
    float cosine = dot(m, n);
    return here + (cosine > 0.3 ? m / cosine : n) * (side * reach);
  }
  return here + n * (side * reach) + along * (outwards * beyond);
}

void main() {
  kind = int(marks.w & 15u);
  c0 = colourOf(marks.x); c1 = colourOf(marks.y); c2 = colourOf(marks.z);
  A = a; B = b; C = c; D = d;
  vec2 unit = vec2(gl_VertexID & 1, gl_VertexID >> 1) * 2.0 - 1.0;
  float growth = d.w > 0.5 || uStill ? 1.0 : uGrowth;
  vec2 p;
  place = unit;
  if (kind == 0) {
    A.xy = moved(a.xy);
    if (a.w > 0.5) A.z *= growth;
    p = A.xy + unit * (A.z + 1.0);
  } else if (kind == 1 || kind == 2) {
    A.xy = moved(a.xy);
    if (b.y > 0.5) A.zw *= growth;
    C.xy = moved(c.xy);
    C.z *= growth;
    p = A.xy + unit * (A.w + 1.0);
  } else if (kind == 3) {
    A.xy = moved(a.xy);
    A.z *= growth;
    p = A.xy + unit * (A.z + 1.0);
  } else if (kind == 4) {
    A = vec4(moved(a.xy), moved(a.zw));
    int flags = int(d.x);
    float reach = 0.5 * c.x + 1.0;
    vec2 along = direction(A.zw - A.xy, vec2(1.0, 0.0));
    float beyond = (flags & 4) != 0 ? reach : 1.0;
    bool atEnd = unit.y > 0.0;
    vec2 here = atEnd ? A.zw : A.xy;
    bool joins = (flags & (atEnd ? 2 : 1)) != 0;
    vec2 neighbour = joins ? moved(atEnd ? b.zw : b.xy) : here;
    p = cornerOf(here, along, joins, neighbour, unit.y, unit.x, reach, beyond);
  } else if (kind == 5) {
    p = moved(gl_VertexID == 0 ? a.xy : gl_VertexID == 1 ? a.zw : b.xy);
  } else if (kind == 6) {
    p = moved(gl_VertexID == 0 ? a.xy : gl_VertexID == 1 ? a.zw : gl_VertexID == 2 ? b.xy : b.zw);
    place = vec2(gl_VertexID >> 1, 0.0);
  } else if (kind == 7) {
    // Of a strip of triangles: the corners go round.
    vec2 own = gl_VertexID == 0 ? a.xy : gl_VertexID == 1 ? a.zw : gl_VertexID == 2 ? b.zw : b.xy;
    p = moved(own);
    place = own;
  } else {
    vec2 anchor = moved(a.xy);
    if (uStill || c.x > 0.5) anchor = floor(anchor + 0.5);
    vec2 corner = (unit * 0.5 + 0.5) * b.xy;
    p = anchor + a.zw + corner;
    place = b.zw + corner;
  }
  // The outer end of a soft edge lies lower than the edge of a neighbour that it reaches into.
  float lower = kind == 6 ? 0.75 * place.x : 0.0;
  gl_Position = toClip(p, 1.0 - 2.0 * (float(marks.w >> 4u) - lower) / 1048576.0);
}
`;

export const kMarkFragment = `#version 300 es
precision highp float;
precision highp int;
uniform sampler2D uAtlas;
uniform vec2 uSize;
flat in int kind;
flat in vec4 A, B, C, D;
flat in vec4 c0, c1, c2;
in vec2 place;
out vec4 colour;

vec4 gradient(float t, float middle) {
  t = clamp(t, 0.0, 1.0);
  if (t < middle) return mix(c0, c1, t / max(middle, 1e-6));
  return mix(c1, c2, (t - middle) / max(1.0 - middle, 1e-6));
}
float inside(float distanceIn) { return clamp(distanceIn + 0.5, 0.0, 1.0); }
// The part of a pixel that a circle covers; all pixels together have the area of the circle, however small it
// is.
float circle(float r, float radius) {
  if (radius >= 0.5) return inside(radius - r) * min(1.0, 0.5 + 0.5 * radius);
  float reach = radius + 0.5;
  return 3.0 * radius * radius / (reach * reach * reach) * max(reach - r, 0.0);
}

float segment(vec2 p) {
  int flags = int(D.x);
  vec2 way = A.zw - A.xy;
  float length_ = max(length(way), 1e-6);
  vec2 along = way / length_;
  float t = dot(p - A.xy, along), off = dot(p - A.xy, vec2(-along.y, along.x)), hw = 0.5 * C.x;
  if ((flags & 8) != 0) return clamp(0.5 - abs(off), 0.0, 0.5);
  if ((flags & 4) != 0 && ((t < 0.0 && (flags & 1) == 0) || (t > length_ && (flags & 2) == 0))) {
    off = length(vec2(off, t < 0.0 ? t : t - length_));
  }
  float cover = clamp(off + hw + 0.5, 0.0, 1.0) - clamp(off - hw + 0.5, 0.0, 1.0);
  if ((flags & 4) == 0) {
    if ((flags & 1) == 0) cover *= inside(t);
    if ((flags & 2) == 0) cover *= inside(length_ - t);
  }
  if (C.y > 0.0) {
    float at = mod(mix(C.z, C.w, clamp(t / length_, 0.0, 1.0)), 2.0 * C.y);
    cover *= clamp(min(at, C.y - at) + 0.5, 0.0, 1.0) + clamp(at - 2.0 * C.y + 0.5, 0.0, 1.0);
  }
  return cover;
}

// The four strokes of a soft edge, one over the other; each ends smoothly where the next is still seen.
float softEdge(float outwards) {
  float d = outwards * 28.0;
  float strokes = 4.0 - smoothstep(2.0, 7.0, d) - smoothstep(7.0, 14.0, d) - smoothstep(14.0, 22.0, d) -
                  smoothstep(22.0, 28.0, d);
  return 1.0 - pow(1.0 - c0.a, strokes);
}

void main() {
  vec2 p = vec2(gl_FragCoord.x, uSize.y - gl_FragCoord.y);
  float cover = 1.0;
  vec4 own = c0;
  if (kind == 0) {
    cover = circle(distance(p, A.xy), A.z);
  } else if (kind == 1 || kind == 2) {
    float r = distance(p, A.xy);
    own = gradient((r - A.z) / max(A.w - A.z, 1e-6), B.x);
    cover = inside(A.w - r);
    if (kind == 2) cover *= inside(C.z - distance(p, C.xy));
  } else if (kind == 3) {
    vec2 q = p - A.xy;
    float r = length(q), x = dot(q, B.xy), y = dot(q, vec2(-B.y, B.x));
    float edge = -A.w * sqrt(max(A.z * A.z - y * y, 0.0));
    // The terminator is steep to the limb: its slope makes the distance of the difference along x.
    float slope = abs(A.w) * abs(y) / max(sqrt(max(A.z * A.z - y * y, 0.0)), 0.5);
    cover = inside(A.z - r) * inside((x - edge) / sqrt(1.0 + slope * slope));
  } else if (kind == 4) {
    cover = segment(p);
  } else if (kind == 6) {
    own.a = softEdge(place.x);
  } else if (kind == 7) {
    vec2 way = C.zw - C.xy;
    own = gradient(dot(place - C.xy, way) / max(dot(way, way), 1e-6), D.x);
  } else if (kind == 8) {
    cover = texture(uAtlas, place / vec2(textureSize(uAtlas, 0))).r;
  }
  float alpha = own.a * cover;
  if (alpha <= 0.0) discard;
  colour = vec4(own.rgb * alpha, alpha);
}
`;
