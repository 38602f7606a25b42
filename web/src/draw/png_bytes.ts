// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT

const kSignature = [137, 80, 78, 71, 13, 10, 26, 10];

function makeSums(): Uint32Array {
  const sums = new Uint32Array(256);
  for (let n = 0; n < 256; ++n) {
    let c = n;
    for (let bit = 0; bit < 8; ++bit) c = c & 1 ? 0xedb88320 ^ (c >>> 1) : c >>> 1;
    sums[n] = c;
  }
  return sums;
}
const kSums = makeSums();

function sumOf(bytes: Uint8Array): number {
  let sum = 0xffffffff;
  for (const byte of bytes) sum = kSums[(sum ^ byte) & 255] ^ (sum >>> 8);
  return (sum ^ 0xffffffff) >>> 0;
}

function makeChunk(name: string, content: Uint8Array): Uint8Array {
  const chunk = new Uint8Array(12 + content.length);
  const view = new DataView(chunk.buffer);
  view.setUint32(0, content.length);
  for (let i = 0; i < 4; ++i) chunk[4 + i] = name.charCodeAt(i);
  chunk.set(content, 8);
  view.setUint32(8 + content.length, sumOf(chunk.subarray(4, 8 + content.length)));
  return chunk;
}

async function deflate(bytes: Uint8Array<ArrayBuffer>): Promise<Uint8Array> {
  const packed = new Blob([bytes]).stream().pipeThrough(new CompressionStream('deflate'));
  return new Uint8Array(await new Response(packed).arrayBuffer());
}

// A PNG file (ISO/IEC 15948) of 8-bit red, green, blue and opacity, row by row from the top.
export async function makePng(width: number, height: number, pixels: Uint8Array): Promise<Uint8Array> {
  const header = new Uint8Array(13);
  const view = new DataView(header.buffer);
  view.setUint32(0, width);
  view.setUint32(4, height);
  header.set([8, 6], 8); // bits a channel, colour with opacity
  const rows = new Uint8Array(height * (1 + 4 * width)); // each begins with its filter, 0 for none
  for (let y = 0; y < height; ++y)
    rows.set(pixels.subarray(4 * width * y, 4 * width * (y + 1)), y * (1 + 4 * width) + 1);
  const parts = [
    Uint8Array.from(kSignature),
    makeChunk('IHDR', header),
    makeChunk('IDAT', await deflate(rows)),
    makeChunk('IEND', new Uint8Array(0)),
  ];
  const file = new Uint8Array(parts.reduce((sum, part) => sum + part.length, 0));
  let at = 0;
  for (const part of parts) {
    file.set(part, at);
    at += part.length;
  }
  return file;
}

export function toDataAddress(png: Uint8Array): string {
  let text = '';
  for (const byte of png) text += String.fromCharCode(byte);
  return `data:image/png;base64,${btoa(text)}`;
}
