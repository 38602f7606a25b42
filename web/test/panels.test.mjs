// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';
import { settle, startBrowser, waitFor } from './browser.mjs';
import { findOnPage, kOrionLink, kSirius, openLink, panel, runProgram } from './pages.mjs';

let site;
let page;
let failures;
before(async () => {
  site = await startBrowser();
  ({ page, failures } = await openLink(site));
});
after(() => site.stop());

async function openSirius() {
  await page.evaluate((object) => window.model.select(object), kSirius);
  await panel(page, 'Sirius').waitFor();
}

test('a click on Sirius opens its panel with the values of skyview', async () => {
  const { x, y } = await findOnPage(page, kSirius);
  await page.mouse.click(x, y);
  await panel(page, 'Sirius').waitFor();
  await waitFor(page, () => document.querySelector('.day dd'));
  const text = await panel(page, 'Sirius').innerText();
  const said = runProgram(
    'where',
    'Sirius',
    '--place',
    '52.52437,13.41053',
    '--zone',
    'Europe/Berlin',
    '--time',
    '2026-01-15T22:00Z',
  );
  const value = (pattern) => pattern.exec(said)[1];
  for (const pattern of [
    /J2000\): (.*)/, /of date\): (.*)/, /Constellation: (.*)/, /Distance: (.*)/, /Magnitude: (.*)/,
    /Rises: (\d\d:\d\d)/, /Transit: (\d\d:\d\d)/, /Sets: (\d\d:\d\d)/,
  ]) assert.ok(text.includes(value(pattern)), `${value(pattern)} in ${text}`); // prettier-ignore
  assert.deepEqual(failures, []);
});

test('a click beside everything closes the panel', async () => {
  await openSirius();
  const bare = await page.evaluate(async () => {
    const { sky, view, canvas } = window.stage;
    for (let y = 0.3 * view.height; y < 0.7 * view.height; y += 23) {
      for (let x = 0.4 * view.width; x < 0.7 * view.width; x += 23) {
        if ((await sky.pick(x, y, 16)).length === 0)
          return { x: (x * canvas.clientWidth) / view.width, y: (y * canvas.clientHeight) / view.height };
      }
    }
    return null;
  });
  assert.ok(bare);
  await page.mouse.click(bare.x, bare.y);
  await panel(page, 'Sirius').waitFor({ state: 'hidden' });
});

test('Escape closes the panel', async () => {
  await openSirius();
  await page.keyboard.press('Escape');
  await panel(page, 'Sirius').waitFor({ state: 'hidden' });
});

test('centre puts the object into the middle of the picture', async () => {
  await openSirius();
  await panel(page, 'Sirius').getByRole('button', { name: 'Centre' }).click();
  await waitFor(page, async () => {
    const [object] = await window.stage.sky.pick(
      window.stage.view.width / 2,
      window.stage.view.height / 2,
      2,
    );
    return object?.number === 2491;
  });
});

test('what is followed stays in the middle as time goes by steps', async () => {
  await openSirius();
  await panel(page, 'Sirius').getByRole('button', { name: 'Follow' }).click();
  await settle(page);
  const before = await page.evaluate(() => window.stage.view.azimuth);
  await page.keyboard.press('.');
  await waitFor(page, (azimuth) => Math.abs(window.stage.view.azimuth - azimuth) > 5, before);
  await settle(page);
  const [object] = await page.evaluate(() =>
    window.stage.sky.pick(window.stage.view.width / 2, window.stage.view.height / 2, 2),
  );
  assert.deepEqual(object, kSirius);
  await panel(page, 'Sirius').getByRole('button', { name: 'Follow' }).click();
  await page.keyboard.press(',');
});

test('why it is drawn is said, and what keeps a name away is undone by a click', async () => {
  await page.evaluate(() => window.model.changeSetting('star.ShowLabel=0'));
  await openSirius();
  const sirius = panel(page, 'Sirius');
  await sirius.getByText('Why it is drawn like this').click();
  await waitFor(page, () => document.querySelectorAll('.why li').length > 0);
  assert.match(await sirius.locator('.why').innerText(), /drawn/);
  await page.evaluate(() => window.model.changeSetting('star.ShowLabel=1'));
});

test('a favourite is marked, listed, and there after the page was loaded again', async () => {
  await openSirius();
  await panel(page, 'Sirius').getByRole('button', { name: 'Favourite' }).click();
  await waitFor(page, () => document.querySelector('.actions [aria-pressed=true]'));
  await page.keyboard.press('m');
  await panel(page, 'More').getByRole('button', { name: 'Sirius', exact: true }).waitFor();
  await page.reload();
  await waitFor(page, () => window.model);
  await page.keyboard.press('m');
  await panel(page, 'More').getByRole('button', { name: 'Sirius', exact: true }).waitFor();
  await panel(page, 'More').getByRole('button', { name: 'Remove Sirius' }).click();
  await panel(page, 'More').getByText('None yet').waitFor();
});

test('on a phone the object is centred above its sheet', async () => {
  const phone = await openLink(site, kOrionLink, {
    size: { width: 390, height: 844 },
    hasTouch: true,
    isMobile: true,
  });
  await phone.page.evaluate((object) => {
    window.model.select(object);
    window.model.run(window.model.centre(object));
  }, kSirius);
  await panel(phone.page, 'Sirius').waitFor();
  await settle(phone.page);
  await waitFor(phone.page, () => document.querySelector('.drawer.left .facts dd'));
  await phone.page.evaluate((object) => window.model.centre(object), kSirius);
  await settle(phone.page);
  const top = await phone.page.evaluate(
    () => document.querySelector('.drawer:not([hidden])').getBoundingClientRect().top,
  );
  const { x, y } = await findOnPage(phone.page, kSirius);
  assert.ok(Math.abs(x - 195) < 3 && Math.abs(y - top / 2) < 3, `${x}, ${y} under a sheet at ${top}`);
  await phone.context.close();
});
