// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import { type FrameList, kArray } from '../core/frame_list';
import { type Gl, makeTexture, Program } from './gl';
import { kMeshFragment, kMeshVertex } from './shaders/mesh';

const kColumns = 4;
const kRows = 5;
const kFirstColour = 6;
const kBeyond = 0.5; // of the picture, on each side, while it turns

// Meshes of colours: the sky's light, the Milky Way.
export class MeshPainter {
  #gl: Gl;
  #program: Program;
  #nodes: WebGLTexture[] = [];

  constructor(gl: Gl) {
    this.#gl = gl;
    this.#program = new Program(gl, kMeshVertex, kMeshFragment);
  }

  // The colours of the meshes go into their textures, once a frame.
  take(list: FrameList, starts: number[]): void {
    const gl = this.#gl;
    gl.activeTexture(gl.TEXTURE0);
    gl.pixelStorei(gl.UNPACK_ALIGNMENT, 4);
    starts.forEach((at, i) => {
      this.#nodes[i] ??= makeTexture(gl);
      const [columns, rows] = [list.ints[at + kColumns], list.ints[at + kRows]];
      const first = 4 * (list.start(kArray.colours) + list.ints[at + kFirstColour]);
      const colours = list.bytes.subarray(first, first + 4 * columns * rows);
      gl.bindTexture(gl.TEXTURE_2D, this.#nodes[i]);
      gl.texImage2D(gl.TEXTURE_2D, 0, gl.RGBA8, columns, rows, 0, gl.RGBA, gl.UNSIGNED_BYTE, colours);
    });
  }

  // Paints a mesh of those that were taken, by its place among them.
  paint(list: FrameList, at: number, index: number, setTurn: (program: Program) => void): void {
    const gl = this.#gl;
    const program = this.#program;
    gl.useProgram(program.handle);
    setTurn(program);
    gl.activeTexture(gl.TEXTURE0);
    gl.bindTexture(gl.TEXTURE_2D, this.#nodes[index]);
    gl.uniform1i(program.at('uNodes'), 0);
    gl.uniform4fv(program.at('uBox'), list.floats, at, 4);
    gl.uniform1f(program.at('uBeyond'), kBeyond);
    gl.drawArrays(gl.TRIANGLE_STRIP, 0, 4);
  }
}
