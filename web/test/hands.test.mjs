// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { after, before, beforeEach, test } from 'node:test';
import { getView, kOrion, openPage, settle, show, startBrowser, waitFor } from './browser.mjs';

let site;
let page;
let devtools; // for events with times and fingers of their own
before(async () => {
  site = await startBrowser();
  const opened = await openPage(site, { hasTouch: true });
  page = opened.page;
  devtools = await opened.context.newCDPSession(page);
});
beforeEach(() => show(page, kOrion));
after(() => site.stop());

// The direction at a pixel of the frame that is shown.
const toVector = (x, y) =>
  page.evaluate(async (at) => [...(await stage.sky.unproject(new Float64Array(at)))], [x, y]);

// Waits until the direction is seen at the pixel, with the frame of its view; moves of fingers reach the page
// a picture later.
async function assertAt(vector, x, y, most = 1) {
  for (const end = Date.now() + 20000; ;) {
    await settle(page);
    const [ownX, ownY] = await page.evaluate(
      async (at) => [...(await stage.sky.project(new Float64Array(at)))],
      vector,
    );
    if (Math.hypot(ownX - x, ownY - y) < most) return;
    assert.ok(Date.now() < end, `${ownX}, ${ownY} and not ${x}, ${y}`);
  }
}

// Mouse events a screen's picture apart, so that speeds are those that the test means however busy the
// machine is.
const kBegin = Date.now() / 1000;
let clock = 0;
const mouse = (type, x, y) =>
  devtools.send('Input.dispatchMouseEvent', {
    type,
    x,
    y,
    button: 'left',
    clickCount: 1,
    timestamp: kBegin + (clock += 0.016),
  });
const touch = (type, ...points) =>
  devtools.send('Input.dispatchTouchEvent', {
    type,
    touchPoints: points.map(([x, y], id) => ({ x, y, id })),
  });

test('a drag keeps the point of the sky under the pointer', async () => {
  const vector = await toVector(700, 300);
  await page.mouse.move(700, 300);
  await page.mouse.down();
  await page.mouse.move(500, 420, { steps: 8 });
  await assertAt(vector, 500, 420);
  await page.mouse.move(820, 260, { steps: 8 });
  await assertAt(vector, 820, 260);
  await page.mouse.up();
});

test('what is let go while it moves goes on and comes to rest', async () => {
  await mouse('mousePressed', 600, 400);
  for (let i = 1; i <= 8; ++i) await mouse('mouseMoved', 600 + 20 * i, 400);
  const released = (await getView(page)).azimuth;
  await mouse('mouseReleased', 760, 400);
  await settle(page);
  const { azimuth } = await getView(page);
  assert.ok(released < 179 && azimuth < released - 3, `${released} and then ${azimuth}`);
});

test('who wants no motion gets none', async () => {
  await page.emulateMedia({ reducedMotion: 'reduce' });
  await mouse('mousePressed', 600, 400);
  for (let i = 1; i <= 8; ++i) await mouse('mouseMoved', 600 + 20 * i, 400);
  const released = (await getView(page)).azimuth;
  await mouse('mouseReleased', 760, 400);
  assert.equal(await page.evaluate(() => hands.mover.isMoving), false);
  assert.equal((await getView(page)).azimuth, released);
  await page.emulateMedia({ reducedMotion: 'no-preference' });
});

test('the wheel zooms towards the pointer', async () => {
  const vector = await toVector(900, 250);
  await page.mouse.move(900, 250);
  await page.mouse.wheel(0, -400);
  await waitFor(page, () => stage.view.zoom > 1.9);
  await assertAt(vector, 900, 250);
  assert.ok(Math.abs((await getView(page)).zoom - 2) < 0.01);
});

test('two fingers zoom and turn, what is between them stays between them', async () => {
  const vector = await toVector(600, 300);
  await touch('touchStart', [550, 300], [650, 300]);
  for (let i = 1; i <= 10; ++i)
    await touch('touchMove', [550 - 5 * i, 300 + 4 * i], [650 + 15 * i, 300 + 4 * i]);
  // 500 to 800 at 340: three times as far apart, the middle at 650.
  await assertAt(vector, 650, 340);
  assert.ok(Math.abs((await getView(page)).zoom - 3) < 0.05);
  await touch('touchEnd');
});

test('one finger drags', async () => {
  const vector = await toVector(600, 300);
  await touch('touchStart', [600, 300]);
  for (let i = 1; i <= 10; ++i) await touch('touchMove', [600 - 10 * i, 300 + 10 * i]);
  await assertAt(vector, 500, 400);
  await touch('touchEnd');
});

test('a double click brings the point to the middle', async () => {
  const vector = await toVector(900, 250);
  await page.mouse.dblclick(900, 250);
  await waitFor(page, () => !hands.mover.isMoving && stage.view.azimuth > 185);
  await assertAt(vector, 640, 400);
});

test('a press that does not move is a tap, a drag is none', async () => {
  await page.evaluate(() => {
    window.taps = [];
    hands.onTap = (x, y) => window.taps.push([x, y]);
  });
  await page.mouse.click(333, 444);
  await page.mouse.move(600, 400);
  await page.mouse.down();
  await page.mouse.move(640, 400, { steps: 4 });
  await page.mouse.up();
  assert.deepEqual(await page.evaluate(() => window.taps), [[333, 444]]);
});

for (const [key, what, isChanged] of [
  ['ArrowLeft', 'turns to the left', (view) => view.azimuth < 179 && view.altitude === 35],
  ['ArrowRight', 'turns to the right', (view) => view.azimuth > 181 && view.altitude === 35],
  ['ArrowUp', 'turns upwards', (view) => view.altitude > 36 && view.azimuth === 180],
  ['ArrowDown', 'turns downwards', (view) => view.altitude < 34 && view.azimuth === 180],
  ['+', 'zooms in', (view) => Math.abs(view.zoom - 1.25) < 1e-9],
  ['-', 'zooms out', (view) => Math.abs(view.zoom - 0.8) < 1e-9],
]) {
  test(`the key ${key} ${what}`, async () => {
    await page.focus('#sky');
    await page.keyboard.press(key);
    await settle(page);
    assert.ok(isChanged(await getView(page)), JSON.stringify(await getView(page)));
  });
}

test('no turn goes beyond the zenith', async () => {
  await page.focus('#sky');
  for (let i = 0; i < 20; ++i) await page.keyboard.press('ArrowUp');
  await settle(page);
  assert.equal((await getView(page)).altitude, 90);
  await page.mouse.move(640, 300);
  await page.mouse.down();
  await page.mouse.move(640, 700, { steps: 5 });
  await settle(page);
  const { altitude } = await getView(page);
  assert.ok(altitude <= 90 && altitude >= -90);
  await page.mouse.up();
});

test('the key f shows times and draw calls', async () => {
  await page.focus('#sky');
  await page.keyboard.press('f');
  assert.match(await page.textContent('#frame-meter'), /compute [\d.]+ ms[^]*draw [\d.]+ ms[^]*\d+ calls/);
  assert.equal(await page.isVisible('#frame-meter'), true);
  await page.keyboard.press('f');
  assert.equal(await page.isVisible('#frame-meter'), false);
});
