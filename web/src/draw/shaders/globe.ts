// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import { kTurnFunctions } from './turn';

// The light of a globe and its ring as docs/formats/display_list.md tells it. Vectors on the body's axes;
// lengths in radii of its equator. `uRing`: of the ring's entries, colours multiplied with opacity, the sums
// up to each.
export const kGlobeVertex = `#version 300 es
precision highp float;
uniform vec3 uDisc;
uniform float uReach;
${kTurnFunctions}
out vec2 at;
flat out float pixel;
void main() {
  vec2 unit = vec2(gl_VertexID & 1, gl_VertexID >> 1) * 2.0 - 1.0;
  float radius = uDisc.z * (uStill ? 1.0 : uGrowth);
  pixel = 1.0 / radius;
  at = unit * (uReach + 2.0 * pixel);
  gl_Position = toClip(turned(uDisc.xy) + at * radius, 0.0);
}
`;

export const kGlobeFragment = `#version 300 es
precision highp float;
precision highp int;
uniform mat3 uToBody;
uniform vec3 uSun, uViewer, uAir;
uniform vec4 uLit, uDark;
uniform float uStretch, uLimb;
uniform vec2 uRingRadii;
uniform int uRingCount;
uniform bool uHasMap;
uniform sampler2D uMap, uRing;
in vec2 at;
flat in float pixel;
out vec4 colour;

const float kShadowed = 0.06, kUnlitRing = 0.25, kResponse = 0.6, kPi = 3.14159265358979;

vec4 sumAt(float radius, float perEntry) {
  float last = float(uRingCount), entry = clamp((radius - uRingRadii.x) / perEntry, 0.0, last);
  int whole = int(min(floor(entry), last - 1.0));
  vec4 here = texelFetch(uRing, ivec2(whole, 0), 0), next = texelFetch(uRing, ivec2(whole + 1, 0), 0);
  return mix(here, next, entry - float(whole));
}
// The mean of the ring over that width about the radius.
vec4 ringAt(float radius, float width) {
  float perEntry = (uRingRadii.y - uRingRadii.x) / float(uRingCount), half_ = 0.5 * max(width, perEntry);
  return (sumAt(radius + half_, perEntry) - sumAt(radius - half_, perEntry)) * perEntry / (2.0 * half_);
}

// The part of the sunlight that the ring lets through to a place on the ball.
float ringShadow(vec3 surface) {
  if (uRingCount == 0 || surface.z * uSun.z >= 0.0) return 1.0;
  float t = -surface.z / uSun.z;
  return 1.0 - (1.0 - kShadowed) * ringAt(length(surface.xy + t * uSun.xy), 2.0 * pixel / abs(uSun.z)).a;
}

vec3 mapAt(vec3 unit, float toViewer) {
  if (!uHasMap) return uLit.rgb;
  float longitude = atan(unit.y, unit.x), latitude = asin(clamp(unit.z, -1.0, 1.0));
  float lod = log2(float(textureSize(uMap, 0).x) * pixel / (2.0 * kPi * max(toViewer, 0.05)));
  return textureLod(uMap, vec2(longitude / (2.0 * kPi) + 0.5, 0.5 - latitude / kPi), max(lod, 0.0)).rgb;
}

vec4 ball(out float z) {
  vec3 stretch = vec3(1.0, 1.0, uStretch), p = uToBody * vec3(at, 0.0) * stretch, v = uViewer * stretch;
  float a = dot(v, v), b = dot(p, v), nearest = dot(p, p) - b * b / a;
  float cover = clamp((1.0 - sqrt(max(nearest, 0.0))) / pixel + 0.5, 0.0, 1.0);
  z = -1e9;
  if (cover <= 0.0) return vec4(0.0);
  z = (-b + sqrt(a * max(1.0 - nearest, 0.0))) / a;
  vec3 unit = p + z * v, steep = normalize(unit * stretch);
  float toSun = dot(steep, uSun), toViewer = max(dot(steep, uViewer), 0.0), light = 0.0;
  if (toSun > 0.0) {
    light = (1.0 - uLimb) * min(1.0, 2.0 * toSun / (toSun + toViewer)) + uLimb * toSun;
    light = pow(light, kResponse) * ringShadow(unit / stretch);
  }
  vec3 own = mapAt(unit, toViewer);
  float bright = max(max(uLit.r, uLit.g), max(uLit.b, 1.0 / 255.0));
  vec3 shown = max(uAir + own * light * (1.0 - uAir), uDark.rgb * own / bright);
  float opacity = cover * uLit.a;
  return vec4(clamp(shown, 0.0, 1.0) * opacity, opacity);
}

vec3 ringPlane(vec2 q, out float towards) {
  vec3 p = uToBody * vec3(q, 0.0);
  towards = -p.z / uViewer.z;
  return vec3(p.xy + towards * uViewer.xy, 0.0);
}

bool isInShadowOfBall(vec3 body) {
  vec3 stretch = vec3(1.0, 1.0, uStretch), s = uSun * stretch, p = body * stretch;
  float a = dot(s, s), b = dot(p, s);
  return b < 0.0 && dot(p, p) - b * b / a < 1.0;
}

vec4 ring(out float z) {
  z = -1e9;
  if (uRingCount == 0 || abs(uViewer.z) < 1e-4) return vec4(0.0);
  float aside;
  vec3 there = ringPlane(at, z);
  float radius = length(there.xy);
  vec3 right = ringPlane(at + vec2(pixel, 0.0), aside), below = ringPlane(at + vec2(0.0, pixel), aside);
  vec2 ways = vec2(length(right.xy), length(below.xy));
  vec4 own = ringAt(radius, length(ways - radius));
  if (own.a <= 0.0) return vec4(0.0);
  bool seesLitSide = (uViewer.z > 0.0) == (uSun.z > 0.0);
  float light = (seesLitSide ? 1.0 : kUnlitRing) * (isInShadowOfBall(there) ? kShadowed : 1.0) * uLit.a;
  float covered = uLit.a * own.a;
  return vec4(uAir * covered + light * own.rgb * (1.0 - uAir), covered);
}

void main() {
  float ballZ, ringZ;
  vec4 globe = ball(ballZ), hoop = ring(ringZ);
  bool isRingUpper = ringZ > ballZ;
  vec4 upper = isRingUpper ? hoop : globe, lower = isRingUpper ? globe : hoop;
  colour = upper + (1.0 - upper.a) * lower;
}
`;
