// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT

// The data root in one file, as web/tools/pack.mjs writes it: gzip over
//
//   SKYPACK1   8 bytes
//   length     u32, little-endian: bytes of the list that follows
//   list       JSON: [{path, size, spans: [[stride, bytes]...]}], the files in order
//   files      one behind the other
//
// The bytes of a span whose stride is more than 1 are transposed: of all its records the first bytes, then
// all second ones, and so on, because like stands beside like then and gzip finds it. `spans` covers the
// file.

interface Entry {
  path: string;
  size: number;
  spans: [stride: number, bytes: number][];
}

const kMagic = 'SKYPACK1';

class PackError extends Error {}

function restore(from: Uint8Array, stride: number, to: Uint8Array): void {
  const records = to.length / stride;
  for (let byte = 0; byte < stride; ++byte) {
    const lane = byte * records;
    for (let i = 0; i < records; ++i) to[i * stride + byte] = from[lane + i];
  }
}

function unpackFile(packed: Uint8Array, entry: Entry): Uint8Array {
  const file = new Uint8Array(entry.size);
  let at = 0;
  for (const [stride, bytes] of entry.spans) {
    if (stride < 1 || bytes % stride || at + bytes > entry.size)
      throw new PackError(`${entry.path}: a bad span`);
    const span = packed.subarray(at, at + bytes);
    if (stride === 1) file.set(span, at);
    else restore(span, stride, file.subarray(at, at + bytes));
    at += bytes;
  }
  if (at !== entry.size) throw new PackError(`${entry.path}: its spans do not cover it`);
  return file;
}

function readPack(bytes: Uint8Array): Map<string, Uint8Array> {
  if (new TextDecoder().decode(bytes.subarray(0, 8)) !== kMagic) throw new PackError('no pack of data');
  const length = new DataView(bytes.buffer, bytes.byteOffset).getUint32(8, true);
  const entries: Entry[] = JSON.parse(new TextDecoder().decode(bytes.subarray(12, 12 + length)));
  const files = new Map<string, Uint8Array>();
  let at = 12 + length;
  for (const entry of entries) {
    if (at + entry.size > bytes.length) throw new PackError(`${entry.path}: cut off`);
    files.set(entry.path, unpackFile(bytes.subarray(at, at + entry.size), entry));
    at += entry.size;
  }
  if (at !== bytes.length) throw new PackError('bytes behind the last file');
  return files;
}

// What gzip made of some bytes; rejects where it did not.
export async function gunzip(packed: ArrayBuffer): Promise<ArrayBuffer> {
  return new Response(new Blob([packed]).stream().pipeThrough(new DecompressionStream('gzip'))).arrayBuffer();
}

// The files of a pack by their paths. Rejects with one line for bytes that are none or are damaged: gzip's
// own sum covers all of them.
export async function unpack(packed: ArrayBuffer): Promise<Map<string, Uint8Array>> {
  try {
    return readPack(new Uint8Array(await gunzip(packed)));
  } catch (error) {
    throw new Error(`The data of the sky are damaged: ${error instanceof Error ? error.message : error}`);
  }
}
