// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import { type Gl, makeTexture } from './gl';

// The texts of the frames as pictures in one texture. A whole text is a picture, shaped by the browser:
// labels stay for many frames, and what a script or a kerning does stays whole. Shelves are filled from the
// top; when the texture is full it begins anew.

const kSide = 2048;
const kFamily = "'DejaVu Sans', 'Segoe UI', system-ui, sans-serif";
const kMargin = 1; // empty pixels round a text, for smooth sampling

const kItalic = 1;
const kBold = 2;

export interface Label {
  x: number; // of its picture in the texture
  y: number;
  width: number;
  height: number;
  left: number; // of the picture from the beginning of the text on its baseline
  top: number;
  advance: number; // width of the text
}

export class LabelAtlas {
  readonly texture: WebGLTexture;
  #gl: Gl;
  #labels = new Map<string, Label>();
  #context: OffscreenCanvasRenderingContext2D;
  #x = 0;
  #y = 0;
  #shelf = 0;

  constructor(gl: Gl) {
    this.#gl = gl;
    this.texture = makeTexture(gl);
    gl.texStorage2D(gl.TEXTURE_2D, 1, gl.R8, kSide, kSide);
    this.#context = new OffscreenCanvas(512, 64).getContext('2d', { willReadFrequently: true })!;
    // The canvas gets its memory when it is first drawn on, for which it asks the process that is soon busy
    // with shaders.
    this.#context.clearRect(0, 0, 1, 1);
  }

  // How often the texture began anew: marks made before that show something else now.
  generation = 0;

  // The picture of a text; `size`: of the font in pixels of the device, `style`: as the list has it. Null for
  // a text that shows nothing or is larger than the texture.
  find(text: string, size: number, style: number): Label | null {
    const key = `${style} ${size.toFixed(2)} ${text}`;
    const known = this.#labels.get(key);
    if (known) return known;
    const made = this.#draw(text, size, style);
    if (made) this.#labels.set(key, made);
    return made;
  }

  #draw(text: string, size: number, style: number): Label | null {
    const context = this.#context;
    const font = `${style & kItalic ? 'italic ' : ''}${style & kBold ? 'bold ' : ''}${size}px ${kFamily}`;
    context.font = font;
    const extents = context.measureText(text);
    const left = Math.floor(-extents.actualBoundingBoxLeft) - kMargin;
    const top = Math.floor(-extents.actualBoundingBoxAscent) - kMargin;
    const width = Math.ceil(extents.actualBoundingBoxRight) + kMargin - left;
    const height = Math.ceil(extents.actualBoundingBoxDescent) + kMargin - top;
    if (!(width > 2 * kMargin) || !(height > 2 * kMargin) || !this.#makeRoom(width, height)) return null;
    const { canvas } = context;
    if (canvas.width < width || canvas.height < height) {
      canvas.width = Math.max(canvas.width, width);
      canvas.height = Math.max(canvas.height, height);
    }
    context.font = font;
    context.fillStyle = '#fff';
    context.clearRect(0, 0, width, height);
    context.fillText(text, -left, -top);
    this.#upload(context.getImageData(0, 0, width, height));
    const label = { x: this.#x, y: this.#y, width, height, left, top, advance: extents.width };
    this.#x += width;
    return label;
  }

  #upload({ data, width, height }: ImageData): void {
    const opacity = new Uint8Array(width * height);
    for (let i = 0; i < opacity.length; ++i) opacity[i] = data[4 * i + 3];
    const gl = this.#gl;
    gl.bindTexture(gl.TEXTURE_2D, this.texture);
    gl.pixelStorei(gl.UNPACK_ALIGNMENT, 1);
    gl.texSubImage2D(gl.TEXTURE_2D, 0, this.#x, this.#y, width, height, gl.RED, gl.UNSIGNED_BYTE, opacity);
  }

  // Puts the pen where such a picture fits.
  #makeRoom(width: number, height: number): boolean {
    if (width > kSide || height > kSide) return false;
    if (this.#x + width > kSide) {
      this.#x = 0;
      this.#y += this.#shelf;
      this.#shelf = 0;
    }
    if (this.#y + height > kSide) {
      this.#labels.clear();
      this.#x = this.#y = this.#shelf = 0;
      ++this.generation;
    }
    this.#shelf = Math.max(this.#shelf, height);
    return true;
  }
}
