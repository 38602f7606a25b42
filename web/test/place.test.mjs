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
  ({ page } = await openLink(site, undefined, {
    geolocation: { latitude: 48.14, longitude: 11.58 },
    permissions: ['geolocation'],
  }));
  await page.keyboard.press('p');
  await panel(page, 'Place').waitFor();
});
after(() => site.stop());

const place = () => page.evaluate(() => window.model.place);
const named = (name) => waitFor(page, (text) => window.model.place.name === text, name);

async function choose(city) {
  await page.getByRole('combobox', { name: 'City' }).fill(city);
  await page.locator('.drawer [role=option]').first().waitFor();
  await page.getByRole('combobox', { name: 'City' }).press('Enter');
}

test('a city is found by its name and brings its zone', async () => {
  await choose('Sydney');
  await named('Sydney');
  const { latitude, longitude, zone } = await place();
  assert.equal(zone, 'Australia/Sydney');
  assert.ok(Math.abs(latitude + 33.868) < 0.01 && Math.abs(longitude - 151.207) < 0.01);
  await settle(page);
  assert.match(await page.locator('.moment').innerText(), /09:00:00[^]*16 Jan 2026 · UT\+11:00 · Sydney/);
});

test('a city is found by its name in another language', async () => {
  await choose('Мюнхен');
  await waitFor(
    page,
    () => window.model.place.zone === 'Europe/Berlin' && Math.abs(window.model.place.latitude - 48.14) < 0.1,
  );
});

test('a click on the map is a place, with the clocks of the nearest city', async () => {
  const map = page.locator('.world canvas');
  const box = await map.boundingBox();
  await page.mouse.click(box.x + (box.width * (139.7 + 180)) / 360, box.y + (box.height * (90 - 35.7)) / 180);
  await waitFor(page, () => window.model.place.zone === 'Asia/Tokyo');
  const { latitude, longitude } = await place();
  const pixel = 360 / box.width; // degrees: a click has whole pixels
  assert.ok(Math.abs(latitude - 35.7) < 1.5 * pixel && Math.abs(longitude - 139.7) < 1.5 * pixel);
});

test('arrow keys move the mark of the map', async () => {
  const { latitude } = await place();
  await page.locator('.world').focus();
  await page.keyboard.press('PageDown');
  await waitFor(page, (wanted) => Math.abs(window.model.place.latitude - wanted) < 1e-6, latitude - 10);
});

test('numbers are a place', async () => {
  await page.getByLabel('Latitude, north positive').fill('-90');
  await page.getByLabel('Latitude, north positive').press('Enter');
  await waitFor(page, () => window.model.place.latitude === -90);
  assert.match((await place()).name, /^near /);
});

test('a zone is typed, and one that nobody knows is refused in words', async () => {
  await page.getByLabel('Time zone').fill('Asia/Kathmandu');
  await page.getByLabel('Time zone').press('Enter');
  await waitFor(page, () => JSON.parse(localStorage.getItem('sky')).place.zone === 'Asia/Kathmandu');
  await page.getByLabel('Time zone').fill('Mars/Olympus');
  await page.getByLabel('Time zone').press('Enter');
  await panel(page, 'Place').getByText('No such time zone').waitFor();
  assert.equal((await place()).zone, 'Asia/Kathmandu');
});

test('the device says where it is, when it is asked and allowed', async () => {
  await page.getByRole('button', { name: 'My location' }).click();
  await waitFor(page, () => Math.abs(window.model.place.latitude - 48.14) < 1e-6);
  assert.equal((await place()).zone, 'Europe/Berlin');
});

test('a device that does not tell is said', async () => {
  const shut = await openLink(site);
  await shut.page.keyboard.press('p');
  await shut.page.getByRole('button', { name: 'My location' }).click();
  await panel(shut.page, 'Place').getByText('The device does not tell where it is').waitFor();
  await shut.context.close();
});

test('the place is kept for the next visit', async () => {
  await choose('Sydney');
  await named('Sydney');
  await page.goto('about:blank');
  await page.goto(site.url);
  await waitFor(page, () => window.model?.place.name === 'Sydney');
});
