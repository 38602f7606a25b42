// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { after, before, test } from 'node:test';
import { settle, startBrowser, waitFor } from './browser.mjs';
import { kOrionLink, kSirius, openLink, panel } from './pages.mjs';

const kAxe = readFileSync(createRequire(import.meta.url).resolve('axe-core/axe.min.js'), 'utf8');

let site;
let page;
before(async () => {
  site = await startBrowser();
  ({ page } = await openLink(site));
  await page.evaluate(kAxe);
});
after(() => site.stop());

async function findFaults(where = page) {
  const faults = await where.evaluate(async () => (await window.axe.run(document)).violations);
  return faults.map(({ id, nodes }) => `${id}: ${nodes.map(({ html }) => html.slice(0, 120)).join(' | ')}`);
}

const kPanels = { t: 'Date and time', p: 'Place', l: 'Layers', m: 'More' };

for (const style of ['screen', 'night', 'print']) {
  test(`axe finds no fault in any panel, style ${style}`, async () => {
    await page.evaluate((name) => window.model.setStyle(name), style);
    await settle(page);
    assert.deepEqual(await findFaults(), [], 'nothing open');
    for (const [key, name] of Object.entries(kPanels)) {
      await page.locator('#sky').focus();
      await page.keyboard.press(key);
      await panel(page, name).waitFor();
      if (key === 'l') {
        await waitFor(page, () => document.querySelectorAll('.setting').length > 20);
        await page.evaluate(() =>
          document.querySelectorAll('.drawer details').forEach((details) => (details.open = true)),
        );
      }
      if (key === 't') await waitFor(page, () => document.querySelector('.night-bar').ariaValueText);
      assert.deepEqual(await findFaults(), [], name);
    }
    await page.evaluate((object) => window.model.select(object), kSirius);
    await waitFor(page, () => document.querySelector('.day dd'));
    assert.deepEqual(await findFaults(), [], 'Sirius');
    await page.keyboard.press('Escape');
    await page.locator('#sky').focus();
    await page.keyboard.press('?');
    await page.getByRole('dialog', { name: 'Keys' }).waitFor();
    assert.deepEqual(await findFaults(), [], 'Keys');
    await page.keyboard.press('Escape');
    await page.evaluate(() => window.model.setStyle('screen'));
  });
}

test('axe finds no fault on a phone', async () => {
  const phone = await openLink(site, kOrionLink, {
    size: { width: 390, height: 844 },
    hasTouch: true,
    isMobile: true,
  });
  await phone.page.evaluate(kAxe);
  assert.deepEqual(await findFaults(phone.page), []);
  await phone.page.evaluate((object) => window.model.select(object), kSirius);
  await waitFor(phone.page, () => document.querySelector('.day dd'));
  assert.deepEqual(await findFaults(phone.page), []);
  await phone.context.close();
});

test('targets for fingers have 44 pixels', async () => {
  const phone = await openLink(site, kOrionLink, {
    size: { width: 390, height: 844 },
    hasTouch: true,
    isMobile: true,
  });
  const small = await phone.page.evaluate(() =>
    [...document.querySelectorAll('#page button, #page select, #page input')]
      .filter((element) => element.checkVisibility())
      .map((element) => [element.outerHTML.slice(0, 80), element.getBoundingClientRect()])
      .filter(([, { width, height }]) => width < 44 || height < 44)
      .map(([html, { width, height }]) => `${width} x ${height}: ${html}`),
  );
  assert.deepEqual(small, []);
  await phone.context.close();
});

// What has the focus after each press of Tab, until it comes round.
async function walk() {
  await page.locator('#sky').focus();
  const seen = [];
  for (let i = 0; i < 400; ++i) {
    await page.keyboard.press('Tab');
    const name = await page.evaluate(() => {
      const element = document.activeElement;
      if (!element || element === document.body) return null;
      element.dataset.walked = '1';
      return element.id === 'sky' ? null : (element.ariaLabel ?? element.textContent.trim());
    });
    if (name === null) break;
    seen.push(name);
  }
  return seen;
}

test('everything is reached by Tab, with every panel open', async () => {
  await page.evaluate((object) => window.model.select(object), kSirius);
  await waitFor(page, () => document.querySelector('.day dd'));
  for (const [key, name] of Object.entries(kPanels)) {
    // What stood there from the last time is made anew.
    await page.evaluate(() => document.querySelectorAll('.setting').forEach((row) => row.remove()));
    await page.locator('#sky').focus();
    await page.keyboard.press(key);
    await panel(page, name).waitFor();
    if (key === 'l') await waitFor(page, () => document.querySelectorAll('.setting').length > 20);
    await walk();
    const missed = await page.evaluate(() =>
      [
        ...document.querySelectorAll(
          '#page button, #page input, #page select, #page summary, #page [tabindex="0"]',
        ),
      ]
        .filter(
          (element) =>
            element.checkVisibility() &&
            element.tabIndex >= 0 &&
            element.type !== 'radio' &&
            !element.dataset.walked,
        )
        .map((element) => element.outerHTML.slice(0, 100)),
    );
    assert.deepEqual(missed, [], name);
  }
  await page.keyboard.press('Escape');
  await page.keyboard.press('Escape');
});

test('Escape gives the focus back to the button that opened the panel', async () => {
  const button = page.getByRole('button', { name: 'Layers' });
  await button.focus();
  await page.keyboard.press('Enter');
  await panel(page, 'Layers').waitFor();
  await page.keyboard.press('Escape');
  await panel(page, 'Layers').waitFor({ state: 'hidden' });
  assert.equal(await button.evaluate((element) => element === document.activeElement), true);
  assert.equal(await button.getAttribute('aria-expanded'), 'false');
});

test('the focus is seen', async () => {
  await page.getByRole('button', { name: 'Place' }).focus();
  await page.keyboard.press('Tab');
  const outline = await page.evaluate(() => getComputedStyle(document.activeElement).outlineStyle);
  assert.equal(outline, 'solid');
});

test('what stands in the middle is read out when the view rests', async () => {
  await page.locator('#sky').focus();
  await page.evaluate((object) => window.model.centre(object), kSirius);
  await waitFor(page, () =>
    /^Sirius, star, magnitude −1.5, altitude 21°$/i.test(
      document.querySelector('[aria-live=polite].unseen').textContent,
    ),
  );
  await page.evaluate(() => window.stage.change({ azimuth: 0, altitude: 89, zoom: 50 }));
  await waitFor(page, () =>
    /azimuth 0°, altitude 89°/.test(document.querySelector('[aria-live=polite].unseen').textContent),
  );
});

test('Enter opens the panel of what stands in the middle', async () => {
  await page.evaluate(() => window.stage.change({ zoom: 1 }));
  await page.evaluate((object) => window.model.centre(object), kSirius);
  await settle(page);
  await page.locator('#sky').focus();
  await page.keyboard.press('Enter');
  await panel(page, 'Sirius').waitFor();
  await page.keyboard.press('Escape');
});

test('keys do nothing else while somebody types', async () => {
  await page.keyboard.press('/');
  await page.keyboard.type('tplm');
  assert.equal(await page.evaluate(() => document.querySelectorAll('.drawer:not([hidden])').length), 0);
  await page.keyboard.press('Escape');
});
