// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';
import { settle, startBrowser, waitFor } from './browser.mjs';
import { openLink, panel } from './pages.mjs';

let site;
let page;
before(async () => {
  site = await startBrowser();
  ({ page } = await openLink(site));
  await page.keyboard.press('l');
  await panel(page, 'Layers').waitFor();
  await waitFor(page, () => document.querySelectorAll('.setting').length > 20);
});
after(() => site.stop());

const layers = () => panel(page, 'Layers');
const countLayer = (layer) =>
  page.evaluate((wanted) => {
    const ints = new Int32Array(window.stage.frame.buffer);
    const [count, start] = [ints[20], ints[21]]; // of the runs
    return Array.from({ length: count }, (_, i) => ints.subarray(start + 4 * i, start + 4 * i + 4))
      .filter((run) => run[1] === wanted)
      .reduce((sum, run) => sum + run[3], 0);
  }, layer);
// A setting changes the frame of the same view: until one comes that has the layer, or has it no more.
async function drawn(layer, isWanted) {
  for (let i = 0; i < 400; ++i) {
    if ((await countLayer(layer)) > 0 === isWanted) return;
    await page.evaluate(() => new Promise((resolve) => setTimeout(resolve, 50)));
  }
  assert.fail(`layer ${layer} is ${isWanted ? 'not ' : ''}drawn`);
}

const kFigures = 3;
const kGrids = 16;

async function press(name) {
  const before = await page.evaluate(() => window.stage.frame.buffer.byteLength && ++window.frames);
  await layers().getByRole('switch', { name }).first().click();
  return before;
}

test('every section and every field of the scene has its control', async () => {
  const missing = await page.evaluate(async () => {
    const fields = await window.stage.sky.getPanelFields();
    return fields
      .filter(
        ({ section, name, type }) => type !== 6 && !document.querySelector(`[id^="s-${section}.${name}"]`),
      )
      .map(({ name }) => name);
  });
  assert.deepEqual(missing, []);
});

test('a switch takes the figures of the constellations away and brings them back', async () => {
  assert.ok((await countLayer(kFigures)) > 0);
  await press(/^Figures/);
  await waitFor(
    page,
    () => window.model && document.querySelector('[id^="q-cnst.PatternsVisible"]').checked === false,
  );
  await drawn(kFigures, false);
  await press(/^Figures/);
  await waitFor(page, () => document.querySelector('[id^="q-cnst.PatternsVisible"]').checked);
  await drawn(kFigures, true);
});

test('a grid is drawn', async () => {
  assert.equal(await countLayer(kGrids), 0);
  await press(/^Equatorial grid/);
  await waitFor(page, () => document.querySelector('[id^="q-grid.RADecGrid"]').checked);
  await drawn(kGrids, true);
});

test('what was changed is there after the page was loaded again, and goes back at one press', async () => {
  await page.reload();
  await waitFor(page, () => window.model?.stage.frame);
  await drawn(kGrids, true);
  await page.keyboard.press('l');
  await layers().getByRole('button', { name: 'Back to the defaults' }).click();
  await page.getByText('All settings are as shipped').waitFor();
  await drawn(kGrids, false);
  assert.deepEqual(await page.evaluate(() => JSON.parse(localStorage.getItem('sky')).changes), []);
});

test('a setting is found by its name', async () => {
  await layers().getByRole('searchbox', { name: 'Find a setting' }).fill('meridian');
  await layers()
    .getByRole('switch', { name: /Meridian/ })
    .first()
    .waitFor();
  assert.equal(await layers().locator('details').count(), 0);
  await layers().getByRole('searchbox').fill('qqq');
  await layers().getByText('No setting of that name').waitFor();
  await layers().getByRole('searchbox').fill('');
});

test('a filter takes numbers and a switch', async () => {
  await layers()
    .locator('details summary', { hasText: /^Stars$/ })
    .click();
  const row = layers().locator('.setting', { has: page.locator('[id="s-star.VisMagnitude"]') });
  await row.getByRole('spinbutton').nth(1).fill('2');
  await row.getByRole('spinbutton').nth(1).press('Enter');
  await row.getByRole('switch').click();
  await waitFor(page, async () =>
    (await window.stage.sky.getPanelFields()).some(
      ({ name, section, isOn, values }) =>
        section === 'star' && name === 'VisMagnitude' && isOn && values === '-2,2',
    ),
  );
  await layers().getByRole('button', { name: 'Back to the defaults' }).click();
});

test('a sky without daylight is an option', async () => {
  await press('Day, twilight and moonlight');
  await waitFor(page, async () => (await window.stage.sky.getOption('sky')) === 'none');
  await press('Day, twilight and moonlight');
  await waitFor(page, async () => (await window.stage.sky.getOption('sky')) === '');
});

test('the night style turns page and sky red, print makes paper of both', async () => {
  await page.keyboard.press('Escape');
  await page.keyboard.press('m');
  await page.getByRole('radio', { name: 'Night, red' }).check();
  await waitFor(page, () => document.documentElement.dataset.style === 'night');
  await settle(page);
  const reds = await page.evaluate(() => {
    const words = new Uint8Array(window.stage.frame.buffer);
    const ints = new Int32Array(window.stage.frame.buffer);
    return Array.from({ length: ints[0] }, (_, i) => 4 * (ints[1] + 11 * i) + 12).filter(
      (at) => words[at + 1] > words[at] || words[at + 2] > words[at],
    ).length;
  });
  assert.equal(reds, 0, 'no star has more green or blue than red');
  const text = await page.evaluate(() => getComputedStyle(document.body).color.match(/\d+/g).map(Number));
  assert.ok(text[0] > 2 * text[1] && text[0] > 2 * text[2]);
  await page.getByRole('radio', { name: 'Print' }).check();
  await waitFor(page, () => document.documentElement.dataset.style === 'print');
  await page.getByRole('radio', { name: 'Natural' }).check();
  await waitFor(page, () => document.documentElement.dataset.style === 'screen');
});

test('the language changes all captions without loading the page again', async () => {
  await page.evaluate(() => (window.isSame = true));
  const captions = () =>
    page.evaluate(() =>
      [
        ...document.querySelectorAll(
          '#page button, #page h2, #page h3, #page legend, #page label > span, #page input, .time-bar option, #page summary',
        ),
      ]
        // What is shut is written anew when it is opened.
        .filter((element) => element.matches('option') || element.checkVisibility())
        .map(
          (element) =>
            element.ariaLabel ||
            element.placeholder ||
            (element.matches('.moment') ? '' : element.textContent.trim()),
        )
        .filter((text) => /[a-zа-я]{3}/i.test(text)),
    );
  const english = new Set(await captions());
  for (const [code, word] of [
    ['ru', 'Ещё'],
    ['de', 'Mehr'],
  ]) {
    await page.locator('select:has(option[lang])').selectOption(code);
    await panel(page, word).waitFor();
    await waitFor(page, (lang) => document.documentElement.lang === lang, code);
    await settle(page);
    // Words that are the same in both languages.
    const same = (await captions()).filter(
      (text) =>
        english.has(text) &&
        !/^(1 min|Telrad|Place|Jan|Name|N(GC|ORAD)|SVG|PNG|English|Deutsch|Русский|Meridian|Park|Monat|Compass|Orion|Asteroids)/.test(
          text,
        ),
    );
    assert.deepEqual(same, [], code);
  }
  assert.equal(await page.evaluate(() => window.isSame), true);
  await page.locator('select:has(option[lang])').selectOption('en');
  await panel(page, 'More').waitFor();
});
