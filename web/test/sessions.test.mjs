// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { mkdtempSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, before, test } from 'node:test';
import { getView, settle, startBrowser, waitFor } from './browser.mjs';
import { download, drop, kSirius, kWinter, openLink, panel, runProgram, toast } from './pages.mjs';

let site;
let page;
let folder;
before(async () => {
  site = await startBrowser();
  ({ page } = await openLink(site));
  folder = mkdtempSync(join(tmpdir(), 'sky-'));
});
after(async () => {
  rmSync(folder, { recursive: true });
  await site.stop();
});

function saveByProgram(...words) {
  const file = join(folder, 'program.session');
  runProgram(...words, '--save-session', file);
  return readFileSync(file, 'utf8');
}

test('a link shows the same sky to another reader', async () => {
  await page.evaluate(() => window.stage.change({ azimuth: 91.5, altitude: 12.25, zoom: 3 }));
  await page.evaluate((object) => window.model.select(object), kSirius);
  await waitFor(
    page,
    () => /look=91.5,12.25&zoom=3/.test(location.hash) && /object=star.2491/.test(location.hash),
  );
  const reader = await openLink(site, new URL(page.url()).hash.slice(1));
  const [own, other] = [await getView(page), await getView(reader.page)];
  for (const key of Object.keys(own)) assert.ok(Math.abs(own[key] - other[key]) < 1e-3, key);
  await panel(reader.page, 'Sirius').waitFor();
  await reader.context.close();
});

test('another fragment in the same page shows its sky', async () => {
  await page.evaluate((fragment) => (location.hash = fragment), `${kWinter}&look=45,30&zoom=2&language=en`);
  await waitFor(page, () => window.stage.view.azimuth === 45 && window.stage.view.zoom === 2);
});

test('a fragment that is no view changes nothing', async () => {
  const before = await getView(page);
  await page.evaluate(() => (location.hash = 'at=1000,0&look=1,2&zoom=1'));
  await settle(page);
  assert.deepEqual(await getView(page), before);
});

test('a session of skyview opens by drag and drop', async () => {
  const session = saveByProgram(
    '--place',
    'Sydney',
    '--time',
    '2026-07-01T21:00',
    '--look',
    '90,40',
    '--zoom',
    '3',
    '--set',
    'grid.RADecGrid=1',
    '--style',
    'night',
    '--language',
    'de',
  );
  await drop(page, session);
  await waitFor(page, () => window.model.place.name === 'Sydney');
  await waitFor(
    page,
    () => document.documentElement.dataset.style === 'night' && window.model.language === 'de',
  );
  await settle(page);
  const view = await getView(page);
  assert.ok(Math.abs(view.azimuth - 90) < 1e-9 && Math.abs(view.altitude - 40) < 1e-9 && view.zoom === 3);
  assert.ok(Math.abs(view.julianDate - (Date.parse('2026-07-01T11:00Z') / 86400000 + 2440587.5)) < 1e-8);
  assert.equal(await page.evaluate(() => window.model.place.zone), 'Australia/Sydney');
  const fields = await page.evaluate(() => window.stage.sky.getPanelFields());
  assert.equal(fields.find(({ section, name }) => section === 'grid' && name === 'RADecGrid').values, '1');
});

test('the session of the page opens in skyview', async () => {
  await page.evaluate(() => window.model.setLanguage('en'));
  await page.evaluate(() => window.stage.change({ azimuth: 200, altitude: 33, zoom: 2.5 }));
  await settle(page);
  await page.keyboard.press('m');
  const text = await download(page, () => page.getByRole('button', { name: 'Save session' }).click());
  const file = join(folder, 'page.session');
  writeFileSync(file, text);
  const report = runProgram('--session', file);
  assert.match(report, /Place: Sydney/);
  assert.match(report, /Local time: 21:00, 01\/07\/2026/);
  assert.match(report, /Direction: azimuth 200°00'00.00", altitude 33°00'00.00"/);
  assert.match(report, /Zoom: 2.5/);
});

test('a session of the page opens in another page', async () => {
  const text = await download(page, () => page.getByRole('button', { name: 'Save session' }).click());
  const other = await openLink(site);
  await drop(other.page, text);
  await waitFor(other.page, () => window.model.place.name === 'Sydney' && window.stage.view.zoom === 2.5);
  await other.context.close();
});

for (const [name, text] of [
  ['no session', 'hello'],
  ['a session with a byte changed', null],
]) {
  test(`${name} is refused in one line and changes nothing`, async () => {
    const before = await getView(page);
    const damaged =
      text ?? saveByProgram('--place', 'Berlin', '--time', '2026-01-01T00:00').replace('m_Zoom', 'm_Zoon');
    await drop(page, damaged);
    await toast(page)
      .getByText(/That did not work: .*(session|damaged)/)
      .waitFor();
    await settle(page);
    assert.deepEqual(await getView(page), before);
  });
}

test('the picture is saved as PNG and as SVG', async () => {
  const file = await Promise.all([
    page.waitForEvent('download'),
    page.getByRole('button', { name: 'Save as PNG' }).click(),
  ]);
  const png = readFileSync(await file[0].path());
  const { width, height } = await getView(page);
  assert.deepEqual([png.readUInt32BE(16), png.readUInt32BE(20)], [width, height]);
  const svg = await download(page, () => page.getByRole('button', { name: 'Save as SVG' }).click());
  const counts = await page.evaluate((text) => {
    const picture = new DOMParser().parseFromString(text, 'image/svg+xml');
    const ints = new Int32Array(window.stage.frame.buffer);
    return {
      isFaulty: picture.querySelector('parsererror') !== null,
      texts: [picture.querySelectorAll('text').length, ints[14]],
      circles: [picture.querySelectorAll('circle').length, ints[0]],
      pictures: [picture.querySelectorAll('image').length, ints[16]],
    };
  }, svg);
  assert.equal(counts.isFaulty, false);
  assert.equal(counts.texts[0], counts.texts[1]);
  assert.equal(counts.pictures[0], counts.pictures[1]);
  assert.ok(counts.circles[0] >= counts.circles[1]);
});
