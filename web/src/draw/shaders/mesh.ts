// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import { kTurnFunctions } from './turn';

// A mesh of colours is a texture with a texel for each node: sampling it smoothly is what the list asks for.
// While the picture turns, the quad reaches beyond the mesh and its edges go on. Slow gradients are dithered
// as paint does it.
export const kMeshVertex = `#version 300 es
precision highp float;
uniform vec4 uBox;
uniform float uBeyond;
${kTurnFunctions}
out vec2 at;
void main() {
  vec2 unit = vec2(gl_VertexID & 1, gl_VertexID >> 1);
  at = unit;
  vec2 p = mix(uBox.xy, uBox.zw, unit);
  if (!uStill) {
    // Nodes of a finer grid would follow the turn exactly; over the time of a frame the middle suffices.
    vec2 middle = 0.5 * (uBox.xy + uBox.zw);
    vec2 moved = turned(middle);
    p = moved + (p - middle) * uGrowth * (1.0 + 2.0 * uBeyond);
    at = (unit - 0.5) * (1.0 + 2.0 * uBeyond) + 0.5;
  }
  gl_Position = toClip(p, 1.0);
}
`;

export const kMeshFragment = `#version 300 es
precision highp float;
precision highp int;
uniform sampler2D uNodes;
in vec2 at;
out vec4 colour;

// In each square of eight pixels every 64th between 0 and 1 once (Bayer 1973).
float threshold(ivec2 p) {
  int order = 0;
  for (int bit = 0; bit < 3; ++bit) order = order << 2 | ((p.x ^ p.y) >> bit & 1) << 1 | (p.y >> bit & 1);
  return (float(order) + 0.5) / 64.0;
}

void main() {
  vec2 nodes = vec2(textureSize(uNodes, 0));
  vec4 own = texture(uNodes, (clamp(at, 0.0, 1.0) * (nodes - 1.0) + 0.5) / nodes);
  float step_ = (threshold(ivec2(gl_FragCoord.xy) & 7) - 0.5) / 255.0;
  colour = vec4(own.rgb * own.a, own.a) + step_ * vec4(vec3(1.0), own.a < 1.0 ? 1.0 : 0.0);
}
`;
