// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// A painter of the display list that writes SVG (docs/formats/display_list.md). What the form has no word for
// is written as paint's is where it can be: a mesh as a small picture that the viewer blends, a globe as its
// disc.

import type { FrameList } from '../core/frame_list';
import { kArray, kWords } from '../core/frame_list';
import { makePng, toDataAddress } from './png_bytes';
import { pathOf, textOfColour, withStop } from './svg_pieces';

const kEdgeWidths = [9, 21, 36, 56]; // of soft edges, halves of the softness
const kClosed = 1,
  kRoundEnds = 2,
  kRoundCorners = 4;
const kItalic = 1,
  kBold = 2;

export interface Size {
  width: number;
  height: number;
}

export async function writeSvg(list: FrameList, size: Size): Promise<string> {
  const painter = new SvgPainter(list, size);
  const runs = list.start(kArray.runs);
  for (let i = 0; i < list.count(kArray.runs); ++i) {
    const [type, , first, count] = list.ints.subarray(runs + kWords.runs * i, runs + kWords.runs * (i + 1));
    await painter.paintRun(type, first, count);
  }
  const { width, height } = size;
  return (
    `<svg xmlns="http://www.w3.org/2000/svg" width="${width}" height="${height}" viewBox="0 0 ${width} ${height}" ` +
    `font-family="sans-serif">\n${painter.text}</svg>\n`
  );
}

class SvgPainter {
  text = '';
  #list: FrameList;
  #size: Size;
  #names = 0;

  constructor(list: FrameList, size: Size) {
    this.#list = list;
    this.#size = size;
  }

  async paintRun(type: number, first: number, count: number): Promise<void> {
    if (type === kArray.polylines) return this.#paintPolylines(first, count);
    const paint = this.#painters[type];
    if (!paint) return; // a type of a later library
    const words = Object.values(kWords)[type];
    for (let i = first; i < first + count; ++i) await paint(this.#list.start(type) + words * i);
  }

  #painters: Record<number, (at: number) => void | Promise<void>> = {
    [kArray.points]: (at) => {
      this.#paintGlow(at, at + 4);
      this.#circle(at, this.#f(at + 2), this.#fill(at + 3));
    },
    [kArray.discs]: (at) => this.#paintDisc(at, at + 8),
    [kArray.globes]: (at) => this.#paintDisc(at, at + 8),
    [kArray.shadows]: (at) => this.#paintShadow(at),
    [kArray.ellipses]: (at) => this.#paintEllipse(at),
    [kArray.polygons]: (at) => this.#paintPolygon(at),
    [kArray.gradients]: (at) => this.#paintGradient(at),
    [kArray.texts]: (at) => this.#paintText(at),
    [kArray.meshes]: (at) => this.#paintMesh(at),
  };

  #f(word: number): number {
    return Number(this.#list.floats[word].toFixed(3));
  }
  #i(word: number): number {
    return this.#list.ints[word];
  }
  #fill(word: number): string {
    return textOfColour('fill', this.#list.words[word]);
  }
  #stroke(colour: number, width: number, dash: number): string {
    const dashes = dash > 0 ? ` stroke-dasharray="${dash}"` : '';
    return `fill="none" ${textOfColour('stroke', this.#list.words[colour])} stroke-width="${width}"${dashes}`;
  }
  #add(line: string): void {
    this.text += line + '\n';
  }
  #circle(at: number, radius: number, how: string): void {
    this.#add(`<circle cx="${this.#f(at)}" cy="${this.#f(at + 1)}" r="${radius}" ${how}/>`);
  }
  #newName(): string {
    return `p${++this.#names}`;
  }

  // A radial gradient around (x, y) whose stops lie between two radii.
  #radial(x: number, y: number, inner: number, outer: number, stops: string): string {
    const name = this.#newName();
    const focus = outer > 0 ? Math.min(inner / outer, 0.999) : 0;
    this.#add(
      `<radialGradient id="${name}" gradientUnits="userSpaceOnUse" cx="${x}" cy="${y}" r="${outer}" fr="${(focus * outer).toFixed(3)}">` +
        `${stops}</radialGradient>`,
    );
    return name;
  }

  #paintGlow(at: number, glow: number): void {
    const { words } = this.#list;
    const radius = this.#f(glow + 1);
    if (!(radius > 0)) return;
    const stops =
      withStop(0, words[glow + 3]) +
      withStop(this.#f(glow + 2), words[glow + 4]) +
      withStop(1, words[glow + 3] & 0xffffff);
    const name = this.#radial(this.#f(at), this.#f(at + 1), this.#f(glow), radius, stops);
    this.#circle(at, radius, `fill="url(#${name})"`);
  }

  #paintDisc(at: number, glow: number): void {
    this.#paintGlow(at, glow);
    const radius = this.#f(at + 2),
      phase = this.#f(at + 5);
    const turn = (Math.atan2(this.#list.floats[at + 4], this.#list.floats[at + 3]) * 180) / Math.PI;
    this.#circle(at, radius, this.#fill(at + 7));
    // Half a circle towards the Sun, back along half an ellipse.
    const across = Number((Math.abs(phase) * radius).toFixed(3));
    this.#add(
      `<path transform="translate(${this.#f(at)} ${this.#f(at + 1)}) rotate(${turn.toFixed(2)})" ` +
        `d="M0 ${-radius}A${radius} ${radius} 0 0 1 0 ${radius}A${across} ${radius} 0 0 ${phase > 0 ? 1 : 0} 0 ${-radius}z" ` +
        `${this.#fill(at + 6)}/>`,
    );
  }

  #paintShadow(at: number): void {
    const { words } = this.#list;
    const clip = this.#newName();
    this.#add(
      `<clipPath id="${clip}"><circle cx="${this.#f(at + 5)}" cy="${this.#f(at + 6)}" r="${this.#f(at + 7)}"/></clipPath>`,
    );
    const stops =
      withStop(0, words[at + 8]) + withStop(this.#f(at + 4), words[at + 9]) + withStop(1, words[at + 10]);
    const name = this.#radial(this.#f(at), this.#f(at + 1), this.#f(at + 2), this.#f(at + 3), stops);
    this.#circle(at, this.#f(at + 3), `fill="url(#${name})" clip-path="url(#${clip})"`);
  }

  #paintEllipse(at: number): void {
    const turn = (this.#list.floats[at + 4] * 180) / Math.PI;
    this.#add(
      `<ellipse rx="${this.#f(at + 2)}" ry="${this.#f(at + 3)}" ` +
        `transform="translate(${this.#f(at)} ${this.#f(at + 1)}) rotate(${turn.toFixed(3)})" ` +
        `${this.#stroke(at + 7, this.#f(at + 5), this.#f(at + 6))}/>`,
    );
  }

  // Lines of one look that follow one another are one path, so that they are no darker where they cross.
  #paintPolylines(first: number, count: number): void {
    const { words } = this.#list;
    const start = this.#list.start(kArray.polylines);
    let path = '';
    for (let i = first; i < first + count; ++i) {
      const at = start + kWords.polylines * i,
        next = at + kWords.polylines;
      path += pathOf(this.#list, this.#i(at), this.#i(at + 1), (this.#i(at + 5) & kClosed) !== 0);
      const isLast =
        i + 1 === first + count || [2, 3, 4, 5].some((word) => words[at + word] !== words[next + word]);
      if (!isLast) continue;
      const flags = this.#i(at + 5);
      const ends = flags & kRoundEnds ? ' stroke-linecap="round"' : '';
      const corners = flags & kRoundCorners ? ' stroke-linejoin="round"' : '';
      this.#add(
        `<path d="${path}" ${this.#stroke(at + 4, this.#f(at + 2), this.#f(at + 3))}${ends}${corners}/>`,
      );
      path = '';
    }
  }

  #paintPolygon(at: number): void {
    const rings = this.#list.start(kArray.rings);
    let path = '';
    for (let ring = this.#i(at); ring < this.#i(at) + this.#i(at + 1); ++ring) {
      path += pathOf(this.#list, this.#i(rings + 2 * ring), this.#i(rings + 2 * ring + 1), true);
    }
    this.#add(`<path fill-rule="evenodd" d="${path}" ${this.#fill(at + 2)}/>`);
    const softness = this.#f(at + 4);
    if (softness > 0) this.#paintSoftEdge(path, softness, at + 3);
  }

  // Strokes outside the area alone.
  #paintSoftEdge(path: string, softness: number, colour: number): void {
    const { width, height } = this.#size;
    const name = this.#newName(),
      beyond = width + height;
    const around = `M${-beyond} ${-beyond}h${3 * beyond}v${3 * beyond}h${-3 * beyond}z`;
    this.#add(
      `<clipPath id="${name}"><path clip-rule="evenodd" d="${path}${around}"/></clipPath><g clip-path="url(#${name})">`,
    );
    for (const edge of kEdgeWidths) {
      this.#add(
        `<path d="${path}" stroke-linejoin="round" ${this.#stroke(colour, Number((0.5 * edge * softness).toFixed(3)), 0)}/>`,
      );
    }
    this.#add('</g>');
  }

  #paintGradient(at: number): void {
    const { words } = this.#list;
    const name = this.#newName();
    const stops =
      withStop(0, words[at + 13]) + withStop(this.#f(at + 12), words[at + 14]) + withStop(1, words[at + 15]);
    this.#add(
      `<linearGradient id="${name}" gradientUnits="userSpaceOnUse" x1="${this.#f(at + 8)}" y1="${this.#f(at + 9)}" ` +
        `x2="${this.#f(at + 10)}" y2="${this.#f(at + 11)}">${stops}</linearGradient>`,
    );
    const corners = [0, 1, 2, 3].map((i) => `${this.#f(at + i)},${this.#f(at + 4 + i)}`);
    this.#add(`<polygon points="${corners.join(' ')}" fill="url(#${name})"/>`);
  }

  #paintText(at: number): void {
    const anchor = ['start', 'middle', 'end'][Math.round(2 * this.#f(at + 2))];
    const style = this.#i(at + 6);
    const slant = style & kItalic ? ' font-style="italic"' : '',
      weight = style & kBold ? ' font-weight="bold"' : '';
    const text = this.#list.text(at).replace(/[&<>]/g, (letter) => `&#${letter.charCodeAt(0)};`);
    this.#add(
      `<text x="${this.#f(at)}" y="${this.#f(at + 1)}" font-size="${this.#f(at + 3)}" text-anchor="${anchor}"${slant}${weight} ` +
        `${this.#fill(at + 7)}>${text}</text>`,
    );
  }

  // A picture element for each node, half an element beyond the edges, cut off there.
  async #paintMesh(at: number): Promise<void> {
    const [left, top, right, bottom] = [0, 1, 2, 3].map((i) => this.#f(at + i));
    const columns = this.#i(at + 4),
      rows = this.#i(at + 5);
    const first = (this.#list.start(kArray.colours) + this.#i(at + 6)) * 4;
    const png = await makePng(columns, rows, this.#list.bytes.subarray(first, first + 4 * columns * rows));
    const width = (right - left) / (columns - 1),
      height = (bottom - top) / (rows - 1);
    const name = this.#newName();
    this.#add(
      `<clipPath id="${name}"><rect x="${left}" y="${top}" width="${right - left}" height="${bottom - top}"/></clipPath>` +
        `<g clip-path="url(#${name})"><image x="${left - width / 2}" y="${top - height / 2}" width="${width * columns}" ` +
        `height="${height * rows}" preserveAspectRatio="none" href="${toDataAddress(png)}"/></g>`,
    );
  }
}
