// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { readdirSync, readFileSync } from 'node:fs';
import { join } from 'node:path';
import { test } from 'node:test';
import { kRoot } from './browser.mjs';
import { loadSource } from './source.mjs';

const kHeaders = join(kRoot, 'scene/include/scene');
const kWords = {
  int32_t: 'i32',
  uint32_t: 'u32',
  double: 'f64',
  'const char*': 'text',
  'const void*': 'pointer',
  SceneObject: 'object',
};

// The members of the structures of a C header: [name, word] in order.
function readStructs(text) {
  const structs = new Map();
  for (const [, body, name] of text
    .replace(/\/\*[^]*?\*\//g, '')
    .matchAll(/typedef struct \w+ \{([^}]*)\} (\w+);/g)) {
    const members = [...body.matchAll(/([\w ]+?\*?)\s*((?:\w+(?:\[\d+\])?(?:,\s*)?)+);/g)].flatMap(
      ([, type, names]) =>
        names.split(',').map((declared) => {
          const [, member, count] = declared.trim().match(/^(\w+)(?:\[(\d+)\])?$/);
          return [member, count ? `char${count}` : kWords[type.trim()]];
        }),
    );
    structs.set(name, members);
  }
  return structs;
}

test('the table of structures is that of the headers', async () => {
  const { kStructs } = await loadSource('core/layouts.ts');
  const headers = readdirSync(kHeaders).filter((name) => name.endsWith('_c.h'));
  const declared = new Map(
    headers.flatMap((name) => [...readStructs(readFileSync(join(kHeaders, name), 'utf8'))]),
  );
  assert.ok(Object.keys(kStructs).length >= 6);
  for (const [name, members] of Object.entries(kStructs)) {
    const known = Object.entries(members);
    // Later versions add members at the end, which the page need not know.
    assert.deepEqual(known, (declared.get(name) ?? []).slice(0, known.length), name);
  }
});

test('members lie where a compiler for wasm32 puts them', async () => {
  const { kStructs, layOut } = await loadSource('core/layouts.ts');
  const view = layOut(kStructs.SceneView);
  assert.deepEqual(
    [view.offsets.height, view.offsets.latitude, view.offsets.zoom, view.size],
    [8, 16, 56, 64],
  );
  assert.deepEqual([layOut(kStructs.SceneArray).offsets.records, layOut(kStructs.SceneArray).size], [12, 16]);
  assert.equal(layOut(kStructs.SceneField).offsets.name, 12);
  assert.equal(layOut(kStructs.SceneRoots).size, 16);
});
