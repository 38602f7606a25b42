// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import { FrameList, kArray, kWords } from '../core/frame_list';
import { addPolygons } from './area_marks';
import { type Gl, Program } from './gl';
import { GlobePainter } from './globe_painter';
import { Instances, kInstanceBytes } from './instances';
import { LabelAtlas } from './label_atlas';
import { addTexts } from './label_marks';
import { addEllipses, addPolylines } from './line_marks';
import { MeshPainter } from './mesh_painter';
import type { Box } from './rings';
import { addDiscGlow, addDiscs, addGradients, addPoints, addShadows } from './round_marks';
import { kMarkFragment, kMarkVertex } from './shaders/mark';
import type { Turn } from './turn';

// What is drawn with one call: marks first to first + count, the mesh or the globe whose record begins at a
// word.
type Step =
  | { type: 'marks'; first: number; count: number }
  | { type: 'mesh'; at: number; index: number }
  | { type: 'globe'; at: number };

// Layers that stand on the screen: the caption's ground, the legend. The caption's own lines are texts of no
// object on the layer of labels.
const kFixedLayers = new Set([12, 20]);

// The room beside the picture on each side, as a part of it, that turning may show before the next frame.
const kRoom = 0.125;

// Paints display lists through WebGL 2. `take` turns a list into marks, once a frame; `paint` draws them, any
// number of times, turned towards the view of the moment.
export class Painter {
  readonly globes: GlobePainter;
  drawCalls = 0; // of the last picture
  markCount = 0; // of the last list
  #gl: Gl;
  #program: Program;
  #marks = new Instances();
  #steps: Step[] = [];
  #list: FrameList | null = null;
  #box: Box = [0, 0, 0, 0];
  #atlas: LabelAtlas;
  #meshes: MeshPainter;
  #buffer: WebGLBuffer;
  #bufferBytes = 0;
  #array: WebGLVertexArrayObject;

  constructor(gl: Gl, loadMap: (index: number) => Promise<Uint8Array | null>) {
    this.#gl = gl;
    this.#atlas = new LabelAtlas(gl);
    this.#program = new Program(gl, kMarkVertex, kMarkFragment);
    this.#meshes = new MeshPainter(gl);
    this.globes = new GlobePainter(gl, loadMap);
    this.#buffer = gl.createBuffer()!;
    this.#array = gl.createVertexArray()!;
    gl.enable(gl.BLEND);
    gl.blendFunc(gl.ONE, gl.ONE_MINUS_SRC_ALPHA);
    gl.depthFunc(gl.LESS);
  }

  // `width` and `height`: pixels of the picture that the list is made for.
  take(buffer: ArrayBuffer, width: number, height: number): void {
    const [x, y] = [kRoom * width, kRoom * height];
    this.#box = [-x, -y, width + x, height + y];
    const list = new FrameList(buffer);
    this.#list = list;
    this.#makeSteps(list);
    this.#upload(this.#marks);
    const meshes = this.#steps.flatMap((step) => (step.type === 'mesh' ? [step.at] : []));
    this.#meshes.take(list, meshes);
  }

  paint(turn: Turn): void {
    const gl = this.#gl;
    const list = this.#list;
    const [width, height] = [gl.drawingBufferWidth, gl.drawingBufferHeight];
    gl.viewport(0, 0, width, height);
    gl.depthMask(true);
    gl.clearColor(0.016, 0.024, 0.055, 1);
    gl.clear(gl.COLOR_BUFFER_BIT | gl.DEPTH_BUFFER_BIT);
    this.drawCalls = 0;
    if (!list) return;
    const setTurn = (program: Program) => {
      gl.uniform4f(program.at('uUpper'), ...turn.upper);
      gl.uniform4f(program.at('uLower'), ...turn.lower);
      gl.uniform3f(program.at('uFrom'), ...turn.from);
      gl.uniform3f(program.at('uTo'), ...turn.to);
      gl.uniform2f(program.at('uSize'), width, height);
      gl.uniform1f(program.at('uGrowth'), turn.growth);
      gl.uniform1i(program.at('uStill'), turn.isStill ? 1 : 0);
    };
    for (const step of this.#steps) {
      ++this.drawCalls;
      if (step.type === 'mesh') {
        gl.disable(gl.DEPTH_TEST);
        this.#meshes.paint(list, step.at, step.index, setTurn);
      } else if (step.type === 'globe') {
        gl.disable(gl.DEPTH_TEST);
        this.globes.paint(list, step.at, setTurn);
      } else this.#paintMarks(step.first, step.count, setTurn);
    }
  }

  #paintMarks(first: number, count: number, setTurn: (program: Program) => void): void {
    const gl = this.#gl;
    gl.enable(gl.DEPTH_TEST);
    gl.useProgram(this.#program.handle);
    setTurn(this.#program);
    gl.activeTexture(gl.TEXTURE0);
    gl.bindTexture(gl.TEXTURE_2D, this.#atlas.texture);
    gl.uniform1i(this.#program.at('uAtlas'), 0);
    gl.bindVertexArray(this.#array);
    gl.bindBuffer(gl.ARRAY_BUFFER, this.#buffer);
    // WebGL has no first instance: the attributes begin at it.
    for (let place = 0; place < 5; ++place) {
      const offset = first * kInstanceBytes + 16 * place;
      gl.enableVertexAttribArray(place);
      gl.vertexAttribDivisor(place, 1);
      if (place < 4) gl.vertexAttribPointer(place, 4, gl.FLOAT, false, kInstanceBytes, offset);
      else gl.vertexAttribIPointer(place, 4, gl.UNSIGNED_INT, kInstanceBytes, offset);
    }
    gl.drawArraysInstanced(gl.TRIANGLE_STRIP, 0, 4, count);
    gl.bindVertexArray(null);
  }

  // The atlas may be full on the way, so that texts placed before are gone: one more round finds room for
  // all.
  #makeSteps(list: FrameList): void {
    for (let round = 0; round < 2; ++round) {
      const { generation } = this.#atlas;
      this.#marks.clear();
      this.#steps = [];
      for (let run = 0; run < list.count(kArray.runs); ++run)
        this.#addRun(list, list.start(kArray.runs) + run * kWords.runs);
      this.#closeMarks();
      if (generation === this.#atlas.generation) return;
    }
  }

  #addRun(list: FrameList, at: number): void {
    const [type, layer, first, count] = list.ints.subarray(at, at + kWords.runs);
    const marks = this.#marks;
    marks.isFixed = kFixedLayers.has(layer);
    if (type === kArray.points) addPoints(list, first, count, marks);
    else if (type === kArray.discs) addDiscs(list, first, count, marks);
    else if (type === kArray.shadows) addShadows(list, first, count, marks);
    else if (type === kArray.polylines) addPolylines(list, first, count, marks);
    else if (type === kArray.ellipses) addEllipses(list, first, count, marks);
    else if (type === kArray.polygons) addPolygons(list, first, count, this.#box, marks);
    else if (type === kArray.gradients) addGradients(list, first, count, marks);
    else if (type === kArray.texts) addTexts(list, first, count, this.#atlas, marks);
    else if (type === kArray.meshes || type === kArray.globes) this.#addOwnSteps(list, type, first, count);
  }

  #addOwnSteps(list: FrameList, type: number, first: number, count: number): void {
    const words = type === kArray.meshes ? kWords.meshes : kWords.globes;
    for (let i = first; i < first + count; ++i) {
      const at = list.start(type) + i * words;
      if (type === kArray.globes) addDiscGlow(list, at, this.#marks);
      this.#closeMarks();
      this.#steps.push(
        type === kArray.meshes ? { type: 'mesh', at, index: this.#countMeshes() } : { type: 'globe', at },
      );
    }
  }

  #countMeshes(): number {
    return this.#steps.filter((step) => step.type === 'mesh').length;
  }

  // The marks since the last step become one.
  #closeMarks(): void {
    const drawn = this.#steps.reduce((sum, step) => sum + (step.type === 'marks' ? step.count : 0), 0);
    const count = this.#marks.count - drawn;
    if (count > 0) this.#steps.push({ type: 'marks', first: drawn, count });
  }

  #upload(marks: Instances): void {
    const gl = this.#gl;
    const { bytes } = marks;
    this.markCount = marks.count;
    gl.bindBuffer(gl.ARRAY_BUFFER, this.#buffer);
    if (bytes.length > this.#bufferBytes) {
      this.#bufferBytes = marks.floats.byteLength;
      gl.bufferData(gl.ARRAY_BUFFER, this.#bufferBytes, gl.STREAM_DRAW);
    }
    gl.bufferSubData(gl.ARRAY_BUFFER, 0, bytes);
  }
}
