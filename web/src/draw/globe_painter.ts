// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import type { FrameList } from '../core/frame_list';
import { kArray } from '../core/frame_list';
import { type Gl, Program } from './gl';
import { kGlobeFragment, kGlobeVertex } from './shaders/globe';

type LoadMap = (index: number) => Promise<Uint8Array | null>;

const kDark = 7;
const kLit = 6;
const kToBody = 15;
const kFlattening = 24;
const kLimb = 25;
const kRingInner = 26;
const kRingOuter = 27;
const kRingFirst = 28;
const kRingCount = 29;
const kMap = 30;
const kAir = 31;

type Rgba = [number, number, number, number];
const toRgba = (word: number) => [0, 8, 16, 24].map((shift) => ((word >>> shift) & 0xff) / 255) as Rgba;

// Bodies whose surface is seen. Maps are loaded when a globe first names them; until one is there, its body
// has the one colour of its disc.
export class GlobePainter {
  // A map came: what was painted without it is to be painted anew.
  onMap: () => void = () => {};
  #gl: Gl;
  #program: Program;
  #loadMap: LoadMap;
  #maps = new Map<number, WebGLTexture | null>();
  #ring: WebGLTexture;

  constructor(gl: Gl, loadMap: LoadMap) {
    this.#gl = gl;
    this.#loadMap = loadMap;
    this.#program = new Program(gl, kGlobeVertex, kGlobeFragment);
    this.#ring = gl.createTexture()!;
    gl.bindTexture(gl.TEXTURE_2D, this.#ring);
    gl.texParameteri(gl.TEXTURE_2D, gl.TEXTURE_MIN_FILTER, gl.NEAREST);
    gl.texParameteri(gl.TEXTURE_2D, gl.TEXTURE_MAG_FILTER, gl.NEAREST);
    gl.texImage2D(gl.TEXTURE_2D, 0, gl.RGBA32F, 1, 1, 0, gl.RGBA, gl.FLOAT, new Float32Array(4));
  }

  // Paints the globe whose record begins at that word. `setTurn` sets the uniforms of the turn.
  paint(list: FrameList, at: number, setTurn: (program: Program) => void): void {
    const gl = this.#gl;
    const { floats, ints, words } = list;
    const program = this.#program;
    gl.useProgram(program.handle);
    setTurn(program);
    gl.uniform3f(program.at('uDisc'), floats[at], floats[at + 1], floats[at + 2]);
    this.#setLight(floats, at);
    gl.uniform4f(program.at('uLit'), ...toRgba(words[at + kLit]));
    gl.uniform4f(program.at('uDark'), ...toRgba(words[at + kDark]));
    const [red, green, blue] = toRgba(words[at + kAir]);
    gl.uniform3f(program.at('uAir'), red, green, blue);
    gl.uniform1f(program.at('uStretch'), 1 / (1 - floats[at + kFlattening]));
    gl.uniform1f(program.at('uLimb'), floats[at + kLimb]);
    this.#setRing(list, at);
    const map = ints[at + kMap] < 0 ? null : this.#findMap(ints[at + kMap]);
    gl.uniform1i(program.at('uHasMap'), map ? 1 : 0);
    gl.activeTexture(gl.TEXTURE0);
    gl.bindTexture(gl.TEXTURE_2D, map ?? this.#ring);
    gl.uniform1i(program.at('uMap'), 0);
    gl.drawArrays(gl.TRIANGLE_STRIP, 0, 4);
  }

  // The Sun and the viewer on the body's axes. Where air squeezes the picture, what points sideways in it is
  // longer on the body.
  #setLight(floats: Float32Array, at: number): void {
    const m = floats.subarray(at + kToBody, at + kToBody + 9);
    const toBody = (x: number, y: number, z: number) =>
      [0, 3, 6].map((row) => m[row] * x + m[row + 1] * y + m[row + 2] * z) as [number, number, number];
    const cosine = Math.min(1, Math.max(-1, floats[at + 5]));
    const viewer = toBody(0, 0, 1);
    const sideways = toBody(floats[at + 3], floats[at + 4], 0);
    const length = Math.hypot(...sideways);
    const aside = length > 0 ? Math.sqrt(1 - cosine * cosine) / length : 0;
    const sun = [0, 1, 2].map((i) => aside * sideways[i] + cosine * viewer[i]) as [number, number, number];
    const gl = this.#gl;
    const program = this.#program;
    gl.uniformMatrix3fv(program.at('uToBody'), true, m);
    gl.uniform3f(program.at('uViewer'), ...viewer);
    gl.uniform3f(program.at('uSun'), ...sun);
  }

  #setRing(list: FrameList, at: number): void {
    const { floats, ints, words } = list;
    const gl = this.#gl;
    const program = this.#program;
    const count = ints[at + kRingCount];
    gl.uniform1i(program.at('uRingCount'), count);
    gl.uniform2f(program.at('uRingRadii'), floats[at + kRingInner], floats[at + kRingOuter]);
    gl.uniform1f(program.at('uReach'), count ? Math.max(1, floats[at + kRingOuter]) : 1);
    gl.activeTexture(gl.TEXTURE1);
    gl.bindTexture(gl.TEXTURE_2D, this.#ring);
    gl.uniform1i(program.at('uRing'), 1);
    if (!count) return;
    const sums = new Float32Array(4 * (count + 1));
    const first = list.start(kArray.colours) + ints[at + kRingFirst];
    for (let i = 0; i < count; ++i) {
      const own = toRgba(words[first + i]);
      for (let channel = 0; channel < 4; ++channel) {
        const part = channel < 3 ? own[channel] * own[3] : own[3];
        sums[4 * (i + 1) + channel] = sums[4 * i + channel] + part;
      }
    }
    gl.texImage2D(gl.TEXTURE_2D, 0, gl.RGBA32F, count + 1, 1, 0, gl.RGBA, gl.FLOAT, sums);
  }

  #findMap(index: number): WebGLTexture | null {
    if (!this.#maps.has(index)) {
      this.#maps.set(index, null);
      void this.#load(index);
    }
    return this.#maps.get(index)!;
  }

  async #load(index: number): Promise<void> {
    const bytes = await this.#loadMap(index);
    if (!bytes) return;
    const picture = await createImageBitmap(new Blob([bytes as BlobPart], { type: 'image/jpeg' }), {
      colorSpaceConversion: 'none',
    }).catch(() => null);
    const gl = this.#gl;
    if (!picture || gl.isContextLost()) return;
    const texture = gl.createTexture()!;
    gl.bindTexture(gl.TEXTURE_2D, texture);
    gl.texImage2D(gl.TEXTURE_2D, 0, gl.RGBA8, gl.RGBA, gl.UNSIGNED_BYTE, picture);
    gl.generateMipmap(gl.TEXTURE_2D);
    gl.texParameteri(gl.TEXTURE_2D, gl.TEXTURE_MIN_FILTER, gl.LINEAR_MIPMAP_LINEAR);
    gl.texParameteri(gl.TEXTURE_2D, gl.TEXTURE_WRAP_S, gl.REPEAT);
    gl.texParameteri(gl.TEXTURE_2D, gl.TEXTURE_WRAP_T, gl.CLAMP_TO_EDGE);
    this.#maps.set(index, texture);
    this.onMap();
  }
}
