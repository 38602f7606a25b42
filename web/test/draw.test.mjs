// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';
import { drawByProgram, kOrion, openPage, show, startBrowser } from './browser.mjs';

const kSize = { width: 1280, height: 800 };

let site;
let opened;
before(async () => {
  site = await startBrowser();
  opened = await openPage(site, { size: kSize });
  // Runs in the page: pixels of a picture, the brightness of one, the centre of light about a point.
  await opened.page.evaluate(() => {
    window.readPixels = async (blob) => {
      const picture = await createImageBitmap(blob, { colorSpaceConversion: 'none' });
      const canvas = new OffscreenCanvas(picture.width, picture.height);
      const context = canvas.getContext('2d');
      context.drawImage(picture, 0, 0);
      return context.getImageData(0, 0, picture.width, picture.height);
    };
    window.readBase64 = async (text) => (await fetch(`data:image/png;base64,${text}`)).blob();
    window.lightAt = ({ data, width }, x, y) => {
      const at = 4 * (y * width + x);
      return data[at] + data[at + 1] + data[at + 2];
    };
    window.centreOfLight = (picture, x, y, reach) => {
      const [left, top] = [Math.floor(x - reach), Math.floor(y - reach)];
      const cells = [];
      for (let j = 0; j <= 2 * reach; ++j)
        for (let i = 0; i <= 2 * reach; ++i)
          cells.push([left + i, top + j, window.lightAt(picture, left + i, top + j)]);
      const ground = Math.min(...cells.map((cell) => cell[2]));
      let [sum, sumX, sumY] = [0, 0, 0];
      for (const [i, j, light] of cells) {
        sum += light - ground;
        sumX += (light - ground) * (i + 0.5);
        sumY += (light - ground) * (j + 0.5);
      }
      return [sumX / sum, sumY / sum];
    };
  });
});
after(() => site.stop());

// The centres of light of bright points of the frame, each here and in the PNG of the same view.
async function compareStars(page, png) {
  return page.evaluate(async (text) => {
    const [own, other] = [await readPixels(await stage.toBlob()), await readPixels(await readBase64(text))];
    const ints = new Int32Array(stage.frame.buffer);
    const floats = new Float32Array(stage.frame.buffer);
    const points = Array.from({ length: ints[0] }, (_, i) =>
      floats.slice(ints[1] + 11 * i, ints[1] + 11 * i + 3),
    );
    const inside = points.filter(
      ([x, y, r]) => r > 0.75 && x > 20 && y > 20 && x < own.width - 20 && y < own.height - 150,
    );
    const lonely = inside.filter(
      ([x, y]) => points.filter(([u, v]) => Math.hypot(u - x, v - y) < 10).length === 1,
    );
    // What is written on a star moves its light, and the program writes fewer names.
    const texts = Array.from({ length: ints[14] }, (_, i) =>
      floats.slice(ints[15] + 10 * i, ints[15] + 10 * i + 4),
    );
    const lengths = texts.map((_, i) => ints[ints[15] + 10 * i + 5]);
    const isWritten = (x, y) =>
      texts.some(([left, base, anchor, size], i) => {
        const width = lengths[i] * size;
        return (
          x > left - anchor * width - 8 &&
          x < left + (1 - anchor) * width + 8 &&
          y > base - size - 6 &&
          y < base + 8
        );
      });
    const bare = lonely.filter(([x, y]) => !isWritten(x - 4, y) && !isWritten(x, y));
    return bare.map(([x, y, r]) => {
      const reach = Math.ceil(r + 1);
      return { at: [x, y], own: centreOfLight(own, x, y, reach), other: centreOfLight(other, x, y, reach) };
    });
  }, png.toString('base64'));
}

for (const [name, part] of [
  ['at zoom 1', {}],
  ['at zoom 4', { zoom: 4, altitude: 32 }],
  ['near the zenith', { altitude: 80, zoom: 0.8 }],
]) {
  test(`stars stand within half a pixel of the program's picture ${name}`, async () => {
    const view = { ...kOrion, ...part };
    await show(opened.page, view);
    const stars = await compareStars(opened.page, drawByProgram(view, kSize));
    assert.ok(stars.length >= 15, `${stars.length} stars`);
    for (const { at, own, other } of stars) {
      const away = Math.hypot(own[0] - other[0], own[1] - other[1]);
      assert.ok(away < 0.5, `${at}: ${own} and ${other}`);
    }
  });
}

// Colours of the sky on a grid, here and in the PNG of the same view, above the horizon.
async function compareSky(page, png, most) {
  return page.evaluate(
    async ([text, bottom]) => {
      const [own, other] = [await readPixels(await stage.toBlob()), await readPixels(await readBase64(text))];
      const differences = [];
      for (let y = 20; y < bottom; y += 30) {
        for (let x = 20; x < own.width; x += 30) {
          const at = 4 * (y * own.width + x);
          differences.push(
            Math.max(...[0, 1, 2].map((i) => Math.abs(own.data[at + i] - other.data[at + i]))),
          );
        }
      }
      return differences.sort((a, b) => a - b);
    },
    [png.toString('base64'), most],
  );
}

for (const [name, part, bottom] of [
  ['of a clear day', { julianDate: 2461212.95, azimuth: 160, altitude: 40 }, 600],
  ['of dusk', { julianDate: 2461213.28, azimuth: 310, altitude: 25 }, 500],
  ['of a night', { altitude: 60 }, 600],
]) {
  test(`the sky ${name} has the colours of the program's picture`, async () => {
    const view = { ...kOrion, ...part };
    await show(opened.page, view);
    const differences = await compareSky(opened.page, drawByProgram(view, kSize), bottom);
    // Labels and a star here and there lie on the grid.
    assert.ok(differences[Math.floor(differences.length * 0.9)] <= 2, `${differences.slice(-40)}`);
  });
}

test("a globe has the surface of the program's picture", async () => {
  const { page } = opened;
  await show(page, kOrion);
  const aim = await page.evaluate(async () => stage.sky.lookAt(await stage.sky.find('Jupiter')));
  const view = { ...kOrion, azimuth: aim.azimuth, altitude: aim.altitude, zoom: 1500 };
  await show(page, view);
  const png = drawByProgram({ ...view, azimuth: aim.azimuth, altitude: aim.altitude }, kSize);
  // The map comes after the globe: the middle of the disc is compared until it is there, or much too late.
  const differ = async () =>
    page.evaluate(async (text) => {
      const [own, other] = [await readPixels(await stage.toBlob()), await readPixels(await readBase64(text))];
      const { width, height } = own;
      let sum = 0;
      let count = 0;
      for (let y = height / 2 - 90; y < height / 2 + 90; y += 3) {
        for (let x = width / 2 - 90; x < width / 2 + 90; x += 3, ++count) {
          const at = 4 * (y * width + x);
          for (let i = 0; i < 3; ++i) sum += Math.abs(own.data[at + i] - other.data[at + i]) / 3;
        }
      }
      return sum / count;
    }, png.toString('base64'));
  let difference = await differ();
  for (const end = Date.now() + 20000; difference > 3 && Date.now() < end; ) difference = await differ();
  assert.ok(difference <= 3, `${difference} steps of 255 on the average`);
});

test('a picture takes fewer than 30 draw calls', async () => {
  const { page } = opened;
  const counts = [];
  for (const part of [
    {},
    { zoom: 0.25 },
    { zoom: 20 },
    { julianDate: 2461212.95, azimuth: 160, altitude: 40 },
  ]) {
    await show(page, { ...kOrion, ...part });
    counts.push(await page.evaluate(() => stage.meter.drawCalls));
  }
  const jupiter = await page.evaluate(async () => ({
    ...(await stage.sky.lookAt(await stage.sky.find('Jupiter'))),
  }));
  for (const zoom of [100, 1000]) {
    await show(page, { azimuth: jupiter.azimuth, altitude: jupiter.altitude, zoom });
    counts.push(await page.evaluate(() => stage.meter.drawCalls));
  }
  for (const count of counts) assert.ok(count > 0 && count < 30, `${counts}`);
});

test('the pixels are those of the device', async () => {
  const { enlargement: _, ...view } = kOrion; // the page has its own
  const { page, context } = await openPage(site, {
    view,
    size: { width: 390, height: 844 },
    deviceScaleFactor: 3,
  });
  const sizes = await page.evaluate(() => [
    stage.canvas.width,
    stage.canvas.height,
    stage.view.width,
    stage.view.height,
  ]);
  assert.deepEqual(sizes, [1170, 2532, 1170, 2532]);
  // Of fonts of 13 in the standard picture, the page shows some 12 of its own pixels.
  const largest = await page.evaluate(() => {
    const ints = new Int32Array(stage.frame.buffer);
    const floats = new Float32Array(stage.frame.buffer);
    return Math.max(...Array.from({ length: ints[14] }, (_, i) => floats[ints[15] + 10 * i + 3]));
  });
  assert.ok(largest / 3 > 12, `${largest} pixels of the device`);
  await context.close();
});

test('while its frame is not there, a turned view is shown by the last one', async () => {
  const { page } = opened;
  await show(page, kOrion);
  const away = await page.evaluate(async () => {
    const { stage } = window;
    const ints = new Int32Array(stage.frame.buffer);
    const floats = new Float32Array(stage.frame.buffer);
    const points = Array.from({ length: ints[0] }, (_, i) =>
      floats.slice(ints[1] + 11 * i, ints[1] + 11 * i + 3),
    );
    const brightest = points
      .filter(([x, y]) => x > 300 && x < 900 && y > 200 && y < 600)
      .sort((a, b) => b[2] - a[2])[0];
    const vector = await stage.sky.unproject(new Float64Array([brightest[0], brightest[1]]));
    // Nothing is awaited in between: no frame of the new view can be there.
    stage.change({ azimuth: 186, altitude: 38, zoom: 1.1 });
    const blob = stage.toBlob();
    const shown = stage.frame.view.azimuth;
    const hasCome = new Promise((resolve) =>
      stage.onFrame((frame) => frame.view.azimuth === 186 && resolve()),
    );
    const picture = await readPixels(await blob);
    await hasCome;
    const [x, y] = await stage.sky.project(vector);
    const [lightX, lightY] = centreOfLight(picture, x, y, Math.ceil(brightest[2] + 1));
    return { shown, away: Math.hypot(lightX - x, lightY - y) };
  });
  assert.equal(away.shown, 180);
  assert.ok(away.away < 0.7, `${away.away} pixels`);
});
