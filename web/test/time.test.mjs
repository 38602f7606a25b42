// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';
import { settle, startBrowser, waitFor } from './browser.mjs';
import { kBerlin, openLink, panel, runProgram } from './pages.mjs';

let site;
let page;
before(async () => {
  site = await startBrowser();
  ({ page } = await openLink(site));
});
after(() => site.stop());

const bar = () => page.getByRole('group', { name: 'Time', exact: true });
const moment = () =>
  page.evaluate(() =>
    new Date((window.stage.view.julianDate - 2440587.5) * 86400000 + 0.5).toISOString().slice(0, 19),
  );
const set = (text) =>
  page.evaluate((iso) => window.model.clock.set(Date.parse(iso) / 86400000 + 2440587.5), text);

async function openTime() {
  if (!(await panel(page, 'Date and time').isVisible())) await page.keyboard.press('t');
  await panel(page, 'Date and time').waitFor();
}

test('the bar shows the clocks of the place, with their zone', async () => {
  await set('2026-01-15T22:00Z');
  assert.match(await bar().innerText(), /23:00:00[^]*15 Jan 2026 · UT\+01:00 · Berlin/);
  await set('2026-07-15T22:00Z');
  assert.match(await bar().innerText(), /00:00:00[^]*16 Jul[a-z]* 2026 · UT\+02:00/);
});

test('time plays forward at the chosen speed, and stops', async () => {
  await set('2026-01-15T22:00Z');
  await bar().getByRole('combobox', { name: 'Speed' }).selectOption({ value: '3600' });
  await waitFor(
    page,
    () => window.stage.view.julianDate > Date.parse('2026-01-15T22:30Z') / 86400000 + 2440587.5,
  );
  await bar().getByRole('button', { name: 'Pause' }).click();
  const stopped = await moment();
  await settle(page);
  assert.equal(await moment(), stopped);
});

test('time plays backwards, a day a second', async () => {
  await set('2026-01-15T22:00Z');
  await bar().getByRole('button', { name: 'Play backwards' }).click();
  await bar().getByRole('combobox', { name: 'Speed' }).selectOption({ value: '86400' });
  await waitFor(
    page,
    () => window.stage.view.julianDate < Date.parse('2026-01-15T12:00Z') / 86400000 + 2440587.5,
  );
  await bar().getByRole('button', { name: 'Pause' }).click();
});

test('the blank plays and stops', async () => {
  await page.locator('#sky').focus();
  await page.keyboard.press(' ');
  await bar().getByRole('button', { name: 'Pause' }).waitFor();
  await page.keyboard.press(' ');
  await bar().getByRole('button', { name: 'Play', exact: true }).waitFor();
});

test('now is the time of the device, and goes with it', async () => {
  await bar().getByRole('button', { name: 'Now' }).click();
  assert.ok(Math.abs(Date.parse(`${await moment()}Z`) - Date.now()) < 5000);
  const before = await moment();
  await waitFor(
    page,
    (text) =>
      new Date((window.stage.view.julianDate - 2440587.5) * 86400000).toISOString().slice(0, 19) > text,
    before,
  );
});

test('a step of a month keeps the time of the clocks over the change to daylight saving', async () => {
  await set('2026-03-15T22:00Z');
  await bar().getByRole('combobox', { name: 'Step' }).selectOption({ label: '1 month' });
  await bar().getByRole('button', { name: 'Forward by a step' }).click();
  assert.equal(await moment(), '2026-04-15T21:00:00');
});

test('the calendar chooses a day, by a click and by keys', async () => {
  await set('2026-01-15T22:00Z');
  await openTime();
  const days = panel(page, 'Date and time').getByRole('grid');
  await days.getByRole('button', { name: '20 Jan 2026' }).click();
  assert.equal(await moment(), '2026-01-20T22:00:00');
  await days.locator('[aria-selected=true] button').focus();
  await waitFor(page, () => document.activeElement.textContent === '20');
  await page.keyboard.press('ArrowDown');
  await waitFor(page, () => document.activeElement.textContent === '27');
  await page.keyboard.press('ArrowDown');
  assert.equal(await moment(), '2026-02-03T22:00:00');
});

test('hours and years are typed', async () => {
  await openTime();
  await set('2026-01-15T22:00Z');
  await page.getByLabel('Hours').fill('3');
  await page.getByLabel('Hours').press('Enter');
  await page.getByLabel('Year').fill('-584');
  await page.getByLabel('Year').press('Enter');
  await waitFor(page, () => /585 BC/.test(document.querySelector('.moment').innerText));
  assert.match(await bar().innerText(), /03:00:00[^]*15 Jan 585 BC/);
});

test('a year beyond what the library knows is refused in words', async () => {
  await openTime();
  await page.getByLabel('Year').fill('12345');
  await page.getByLabel('Year').press('Enter');
  await panel(page, 'Date and time').getByText('The calendar has no such date').waitFor();
});

test('the night has the times of skyview', async () => {
  await set('2026-01-15T22:00Z');
  await openTime();
  // Three days before new Moon: the night that stood there before is another one.
  await waitFor(page, () => /waning crescent/.test(document.querySelector('.night')?.innerText));
  const text = await panel(page, 'Date and time').locator('.night').innerText();
  const said = runProgram(
    'tonight',
    '--place',
    '52.52437,13.41053',
    '--zone',
    'Europe/Berlin',
    '--time',
    '2026-01-15T22:00Z',
    '--format',
    'json',
  );
  const night = JSON.parse(said);
  const times = JSON.stringify(night)
    .match(/T\d\d:\d\d:\d\d/g)
    // The page rounds to minutes.
    .map((time) => new Date(Date.parse(`2026-01-15${time}Z`) + 30000).toISOString().slice(11, 16));
  const shown = text.match(/\d\d:\d\d/g);
  assert.ok(shown.length >= 9, text);
  for (const time of shown) assert.ok(times.includes(time), `${time} of ${text}`);
});

test('the bar of the night sets the time, by keys and by a click', async () => {
  await set('2026-01-15T22:00Z');
  await openTime();
  const night = page.getByRole('slider', { name: 'Time of the night' });
  await waitFor(page, () => document.querySelector('.night-bar').ariaValueText === '23:00');
  await night.focus();
  await page.keyboard.press('ArrowRight');
  assert.equal(await moment(), '2026-01-15T22:05:00');
  await page.keyboard.press('PageUp');
  assert.equal(await moment(), '2026-01-15T23:05:00');
  const box = await night.boundingBox();
  await page.mouse.click(box.x + box.width / 2, box.y + 20);
  const hour = Number((await moment()).slice(11, 13));
  assert.ok(hour === 23 || hour === 22, 'the middle of the night is near midnight');
});

test('a page without a time in its address goes with the clock', async () => {
  const live = await openLink(site, `${kBerlin}&look=180,25&zoom=1&language=en`);
  assert.equal(await live.page.evaluate(() => window.model.clock.isLive), true);
  assert.equal(await live.page.getByRole('button', { name: 'Now' }).getAttribute('aria-pressed'), 'true');
  await live.context.close();
});
