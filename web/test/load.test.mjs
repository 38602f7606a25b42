// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { cpSync, mkdtempSync, readFileSync, rmSync, statSync, truncateSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, before, test } from 'node:test';
import { kBuilt, openPage, startBrowser, waitFor } from './browser.mjs';

let site;
before(async () => (site = await startBrowser()));
after(() => site.stop());

test('the first frame comes, and nothing is complained of', async () => {
  const { page, context, failures } = await openPage(site);
  assert.equal(await page.isVisible('#loading'), false);
  assert.ok((await page.evaluate(() => window.stage.meter.marks)) > 1000);
  assert.deepEqual(failures, []);
  await context.close();
});

test('module and data together are less than 6 MB', () => {
  const bytes = ['scene.wasm.gz', 'sky.pack'].map((name) => statSync(join(kBuilt, name)).size);
  assert.ok(bytes[0] + bytes[1] < 6e6, `${bytes}`);
});

test('nothing is asked of another host', async () => {
  const context = await site.browser.newContext();
  const page = await context.newPage();
  const hosts = new Set();
  page.on(
    'request',
    (request) => request.url().startsWith('http') && hosts.add(new URL(request.url()).origin),
  );
  await page.goto(site.url);
  await waitFor(page, () => window.stage?.frame);
  assert.deepEqual([...hosts], [new URL(site.url).origin]);
  await context.close();
});

test('the bar shows how much has come', async () => {
  const context = await site.browser.newContext();
  const page = await context.newPage();
  let release;
  const held = new Promise((resolve) => (release = resolve));
  await page.route('**/scene.wasm.gz', async (route) => {
    await held;
    await route.continue();
  });
  await page.goto(site.url);
  await waitFor(page, () => document.getElementById('loading-bar').value > 0.5);
  assert.equal(await page.isVisible('#loading-bar'), true);
  release();
  await waitFor(page, () => document.getElementById('loading').hidden);
  await context.close();
});

// The page on a copy of its folder that `damage` has changed: the line that it shows.
async function readLine(damage) {
  const folder = mkdtempSync(join(tmpdir(), 'sky-'));
  cpSync(kBuilt, folder, { recursive: true });
  damage(folder);
  const own = await startBrowser(folder);
  try {
    const page = await own.browser.newPage();
    await page.goto(own.url);
    await waitFor(page, () => document.querySelector('#loading [role=alert]'));
    return await page.textContent('#loading-line');
  } finally {
    await own.stop();
    rmSync(folder, { recursive: true });
  }
}

test('a missing pack gives one line', async () => {
  const line = await readLine((folder) => rmSync(join(folder, 'sky.pack')));
  assert.equal(line, 'sky.pack cannot be loaded: the server says 404');
});

test('a pack that is cut off gives one line', async () => {
  const line = await readLine((folder) => truncateSync(join(folder, 'sky.pack'), 3e6));
  assert.match(line, /^The data of the sky are damaged: [^\n]+$/);
});

test('a pack with one byte changed gives one line', async () => {
  const line = await readLine((folder) => {
    const pack = readFileSync(join(folder, 'sky.pack'));
    pack[2e6] ^= 0x10;
    writeFileSync(join(folder, 'sky.pack'), pack);
  });
  assert.match(line, /^The data of the sky are damaged: [^\n]+$/);
});

test('a damaged module gives one line', async () => {
  const line = await readLine((folder) => truncateSync(join(folder, 'scene.wasm.gz'), 1e5));
  assert.equal(line, 'The program of the sky is damaged.');
});
