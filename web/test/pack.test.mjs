// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { join } from 'node:path';
import { after, before, test } from 'node:test';
import { gunzipSync } from 'node:zlib';
import { kBuilt, kRoot, openPage, startBrowser } from './browser.mjs';

// The pack by its description alone (web/src/core/pack.ts): path to bytes.
function readPack() {
  const bytes = gunzipSync(readFileSync(join(kBuilt, 'sky.pack')));
  const length = bytes.readUInt32LE(8);
  const files = new Map();
  let at = 12 + length;
  for (const { path, size, spans } of JSON.parse(bytes.subarray(12, 12 + length))) {
    const file = Buffer.alloc(size);
    let begin = 0;
    for (const [stride, count] of spans) {
      const records = count / stride;
      for (let i = 0; i < count; ++i)
        file[begin + (i % records) * stride + Math.floor(i / records)] = bytes[at + begin + i];
      begin += count;
    }
    files.set(path, file);
    at += size;
  }
  return files;
}

let site;
before(async () => (site = await startBrowser()));
after(() => site.stop());

test('every file of the pack is that of the data root', () => {
  const files = readPack();
  assert.ok(files.size > 80, `${files.size}`);
  for (const name of ['catalogs/stars.tiles', 'catalogs/stars.txt', 'qxstrings.txt', 'media/maps/moon.jpg'])
    assert.ok(files.has(name), name);
  for (const [path, file] of files) {
    assert.ok(file.equals(readFileSync(join(kRoot, 'build/release/data', path))), path);
  }
});

test('the page unpacks what was packed', async () => {
  const file = readFileSync(join(kRoot, 'build/release/data/media/maps/jupiter.jpg'));
  const { page, context } = await openPage(site, { view: null });
  const jupiter = await page.evaluate(async (size) => {
    for (let index = 0; ; ++index) {
      const map = await stage.sky.getMap(index);
      if (!map) return null;
      if (map.length === size) return [...map];
    }
  }, file.length);
  assert.deepEqual(jupiter, [...file]);
  await context.close();
});
