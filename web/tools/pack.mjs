// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT

// Makes the pack of a data root that the page loads (web/src/core/pack.ts has its form):
//
//   node web/tools/pack.mjs DATA_ROOT PACK
import { readFileSync, readdirSync, statSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { gzipSync } from 'node:zlib';

// Prepared catalogs save some milliseconds and cost 2.7 MB: the scene makes them of their tables.
const kLeftOut = /\.prepared$/;

// Of docs/formats/star_tiles.md.
const kRecordBytes = 20;
const kIndexBytes = 8;
const kEntryBytes = 8;
const kBlockEntries = 511;

// [stride, bytes] of the parts of a tile catalog: header, records and index of each band, the index of
// numbers, whose blocks begin with a sum of four bytes.
function spansOfTiles(file) {
  const spans = [[1, file.readUInt32LE(12)]];
  const stars = file.readUInt32LE(24);
  for (let band = 0; band < file.readUInt32LE(20); ++band) {
    const cells = 12 * 4 ** file.readUInt32LE(48 + 16 * band);
    spans.push(
      [kRecordBytes, kRecordBytes * file.readUInt32LE(48 + 16 * band + 8)],
      [kIndexBytes, kIndexBytes * cells],
    );
  }
  const hasNumbers = file.readUInt32LE(8) >= 2;
  for (let left = hasNumbers ? stars : 0; left > 0; left -= kBlockEntries) {
    spans.push([1, 4], [kEntryBytes, kEntryBytes * Math.min(left, kBlockEntries)]);
  }
  return spans;
}

// Of all records the first bytes, then the second ones, and so on.
function transpose(span, stride) {
  if (stride === 1) return span;
  const records = span.length / stride;
  const lanes = Buffer.alloc(span.length);
  for (let byte = 0; byte < stride; ++byte) {
    for (let i = 0; i < records; ++i) lanes[byte * records + i] = span[i * stride + byte];
  }
  return lanes;
}

function packFile(root, path) {
  const file = readFileSync(join(root, path));
  const spans = path.endsWith('.tiles') ? spansOfTiles(file) : [[1, file.length]];
  let at = 0;
  const parts = spans.map(([stride, bytes]) => transpose(file.subarray(at, (at += bytes)), stride));
  if (at !== file.length) throw new Error(`${path}: ${file.length} bytes, but ${at} were expected`);
  return { entry: { path, size: file.length, spans }, bytes: Buffer.concat(parts) };
}

export function makePack(root) {
  const paths = readdirSync(root, { recursive: true })
    .map((path) => path.replaceAll('\\', '/'))
    .filter((path) => statSync(join(root, path)).isFile() && !kLeftOut.test(path))
    .sort();
  const files = paths.map((path) => packFile(root, path));
  const list = Buffer.from(JSON.stringify(files.map(({ entry }) => entry)));
  const head = Buffer.concat([Buffer.from('SKYPACK1'), Buffer.alloc(4)]);
  head.writeUInt32LE(list.length, 8);
  return gzipSync(Buffer.concat([head, list, ...files.map(({ bytes }) => bytes)]), { level: 9 });
}

if (process.argv[1] === fileURLToPath(import.meta.url)) {
  const [root, out] = process.argv.slice(2);
  if (!out) {
    console.error('usage: pack.mjs DATA_ROOT PACK');
    process.exit(2);
  }
  writeFileSync(out, makePack(root));
}
