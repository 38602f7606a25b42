// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT

// What WebGL 2 takes many words for.

export type Gl = WebGL2RenderingContext;

function compile(gl: Gl, type: number, source: string): WebGLShader {
  const shader = gl.createShader(type)!;
  gl.shaderSource(shader, source);
  gl.compileShader(shader);
  return shader;
}

// A program with the locations of its uniforms. Throws with the compiler's words.
export class Program {
  readonly handle: WebGLProgram;
  #gl: Gl;
  #places = new Map<string, WebGLUniformLocation | null>();

  constructor(gl: Gl, vertex: string, fragment: string) {
    this.#gl = gl;
    this.handle = gl.createProgram()!;
    const shaders = [compile(gl, gl.VERTEX_SHADER, vertex), compile(gl, gl.FRAGMENT_SHADER, fragment)];
    for (const shader of shaders) gl.attachShader(this.handle, shader);
    gl.linkProgram(this.handle);
    if (!gl.getProgramParameter(this.handle, gl.LINK_STATUS) && !gl.isContextLost()) {
      throw new Error(
        shaders.map((shader) => gl.getShaderInfoLog(shader)).join('\n') + gl.getProgramInfoLog(this.handle),
      );
    }
  }

  at(name: string): WebGLUniformLocation | null {
    if (!this.#places.has(name)) this.#places.set(name, this.#gl.getUniformLocation(this.handle, name));
    return this.#places.get(name)!;
  }
}

// A texture of bytes, red green blue opacity, smooth within and going on beyond its edges.
export function makeTexture(gl: Gl): WebGLTexture {
  const texture = gl.createTexture()!;
  gl.bindTexture(gl.TEXTURE_2D, texture);
  gl.texParameteri(gl.TEXTURE_2D, gl.TEXTURE_MIN_FILTER, gl.LINEAR);
  gl.texParameteri(gl.TEXTURE_2D, gl.TEXTURE_MAG_FILTER, gl.LINEAR);
  gl.texParameteri(gl.TEXTURE_2D, gl.TEXTURE_WRAP_S, gl.CLAMP_TO_EDGE);
  gl.texParameteri(gl.TEXTURE_2D, gl.TEXTURE_WRAP_T, gl.CLAMP_TO_EDGE);
  return texture;
}
