// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';
import { settle, startBrowser, waitFor } from './browser.mjs';
import { openLink, panel, toast } from './pages.mjs';

let site;
let page;
before(async () => {
  site = await startBrowser();
  ({ page } = await openLink(site));
});
after(() => site.stop());

const field = () => page.getByRole('combobox', { name: 'Search' });

// What stood in the field before is selected, so that typing replaces it.
async function type(text) {
  await page.locator('#sky').focus();
  await page.keyboard.press('/');
  await page.keyboard.type(text);
}

const options = () => page.locator('.search [role=option]');

test('the slash goes to the search, Enter takes the first suggestion', async () => {
  await type('jup');
  await options().first().waitFor();
  assert.match(await options().first().innerText(), /Jupiter/);
  await page.keyboard.press('Enter');
  await panel(page, 'Jupiter').waitFor();
  await settle(page);
  const [object] = await page.evaluate(() =>
    window.stage.sky.pick(window.stage.view.width / 2, window.stage.view.height / 2, 4),
  );
  assert.equal(object.number, 5);
});

for (const [name, typed, shown] of [
  ['an alias', 'north star', /Polaris/],
  ['a number of a catalogue', 'HIP 32349', /Sirius/],
  ['a number of Messier', 'm31', /M 31/],
  ['a name in another language', 'Сириус', /Sirius/],
]) {
  test(`${name} is found`, async () => {
    await type(typed);
    await waitFor(page, () => document.querySelector('.search [role=option]'));
    await waitFor(
      page,
      (source) => new RegExp(source).test(document.querySelector('.search [role=listbox]').innerText),
      shown.source,
    );
    await page.keyboard.press('Escape');
  });
}

test('Enter does not wait for the suggestions to be shown', async () => {
  await type('Saturn');
  await page.keyboard.press('Enter');
  await panel(page, 'Saturn').waitFor();
});

test('arrow keys go through the suggestions', async () => {
  await type('al');
  await options().nth(2).waitFor();
  await page.keyboard.press('ArrowDown');
  await page.keyboard.press('ArrowDown');
  assert.equal(await options().nth(1).getAttribute('aria-selected'), 'true');
  assert.equal(
    await field().getAttribute('aria-activedescendant'),
    await options().nth(1).getAttribute('id'),
  );
  await page.keyboard.press('ArrowUp');
  await page.keyboard.press('ArrowUp');
  assert.equal(await options().last().getAttribute('aria-selected'), 'true');
  await page.keyboard.press('Escape');
  assert.equal(await field().getAttribute('aria-expanded'), 'false');
});

test('a name that nothing has is said', async () => {
  await type('qqqqq');
  await page.keyboard.press('Enter');
  await toast(page).getByText('Nothing of that name').waitFor();
});

test('suggestions are in the language of the page', async () => {
  await page.evaluate(() => window.model.setLanguage('de'));
  await page.locator('#sky').focus();
  await page.keyboard.press('/');
  await page.keyboard.type('polars');
  await waitFor(page, () => /Polarstern/.test(document.querySelector('.search [role=listbox]').innerText));
  await page.evaluate(() => window.model.setLanguage('en'));
});
