// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT

// Measures the built page (build/web, or the folder that is named) in the distribution's Chromium, which draws in
// software here: bytes, time to the first frame with a cold and a warm cache, and what a frame takes at 1920 x 1080
// while the view turns over the whole sky, no view twice.
//
//   node web/tools/measure.mjs [FOLDER]
import { readdirSync, statSync } from 'node:fs';
import { join } from 'node:path';
import { kBuilt, kOrion, settle, startBrowser, waitFor } from '../test/browser.mjs';

const kLoads = 5;
const kFrames = 200;

const folder = process.argv[2] ?? kBuilt;
const site = await startBrowser(folder);

const middle = (numbers, part = 0.5) => [...numbers].sort((a, b) => a - b)[Math.floor(numbers.length * part)];
const write = (name, numbers) =>
  console.log(`${name}: median ${middle(numbers).toFixed(1)} ms, 95 % below ${middle(numbers, 0.95).toFixed(1)} ms`);

// Milliseconds from the navigation to the first picture with stars.
async function timeLoad(page, go) {
  await go();
  await waitFor(page, () => window.stage?.meter.drawCalls > 0);
  return page.evaluate(() => performance.now());
}

const files = readdirSync(folder, { recursive: true }).map((name) => join(folder, name));
const bytes = files.filter((name) => statSync(name).isFile()).reduce((sum, name) => sum + statSync(name).size, 0);
console.log(`bytes: ${bytes}, of these ${['scene.wasm.gz', 'sky.pack'].map((name) => statSync(join(folder, name)).size)}`);

const cold = [];
const warm = [];
for (let i = 0; i < kLoads; ++i) {
  const context = await site.browser.newContext({ viewport: { width: 1920, height: 1080 } });
  const page = await context.newPage();
  cold.push(await timeLoad(page, () => page.goto(site.url)));
  await waitFor(page, () => navigator.serviceWorker.controller?.state === 'activated');
  warm.push(await timeLoad(page, () => page.reload()));
  await context.close();
}
write('first frame, cold', cold);
write('first frame, warm', warm);

const page = await site.browser.newPage({ viewport: { width: 1920, height: 1080 } });
await timeLoad(page, () => page.goto(site.url));
const meters = [];
for (let i = 0; i < kFrames; ++i) {
  // The golden angle fills the circle without coming back.
  const view = { ...kOrion, azimuth: (137.508 * i) % 360, altitude: 10 + ((23.7 * i) % 70) };
  await page.evaluate((next) => window.stage.change(next), view);
  await settle(page);
  meters.push(await page.evaluate(() => ({ ...window.stage.meter })));
}
for (const name of ['compute', 'copy', 'take', 'draw']) write(name, meters.map((meter) => meter[name]));
console.log(`draw calls: at most ${Math.max(...meters.map((meter) => meter.drawCalls))}`);
console.log(`marks: at most ${Math.max(...meters.map((meter) => meter.marks))}`);

// From picture to picture while the view turns with every one of them: what the eye gets, rasterising included.
const moments = await page.evaluate(
  () =>
    new Promise((resolve) => {
      const seen = [];
      const step = (now) => {
        seen.push(now);
        if (seen.length > 120) return resolve(seen);
        window.stage.change({ azimuth: window.stage.view.azimuth + 0.3 });
        requestAnimationFrame(step);
      };
      requestAnimationFrame(step);
    }),
);
write(
  'from picture to picture, turning',
  moments.slice(1).map((moment, i) => moment - moments[i]),
);
await site.stop();
