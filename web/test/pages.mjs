// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT

// What the tests of the panels share, above browser.mjs: a page on a link, and what skyview says of the same
// sky.
import { execFileSync } from 'node:child_process';
import { readFileSync } from 'node:fs';
import { join } from 'node:path';
import { kRoot, settle, waitFor } from './browser.mjs';

// Orion over Berlin, 15 January 2026, 23 h by the clocks there.
export const kBerlin = 'at=52.52437,13.41053&place=Berlin&zone=Europe/Berlin';
export const kWinter = `${kBerlin}&time=2026-01-15T22:00Z`;
export const kOrionLink = `${kWinter}&look=180,25&zoom=1&language=en`;
export const kSirius = { kind: 0x73746172, number: 2491 };

export async function openLink(
  { browser, url },
  link = kOrionLink,
  { size = { width: 1280, height: 800 }, ...options } = {},
) {
  const context = await browser.newContext({
    viewport: size,
    reducedMotion: 'reduce',
    locale: 'en-GB',
    timezoneId: 'Europe/Berlin',
    ...options,
  });
  const page = await context.newPage();
  const failures = [];
  page.on('pageerror', (error) => failures.push(error.message));
  page.on('console', (message) => message.type() === 'error' && failures.push(message.text()));
  await page.goto(`${url}#${link}`);
  await waitFor(page, () => window.model && window.stage?.frame);
  await settle(page);
  return { page, context, failures };
}

// A panel that is open, by the word in its heading.
export const panel = (page, name) => page.getByRole('region', { name, exact: true });

// Where an object is drawn, in pixels of the page.
export async function findOnPage(page, object) {
  return page.evaluate(async (it) => {
    const { sky, view, canvas } = window.stage;
    const { rightAscension, declination } = await sky.observe(it);
    const [a, d] = [rightAscension, declination].map((angle) => (angle * Math.PI) / 180);
    const vector = Float64Array.of(Math.cos(d) * Math.cos(a), Math.cos(d) * Math.sin(a), Math.sin(d));
    const [x, y] = await sky.project(vector);
    return { x: (x * canvas.clientWidth) / view.width, y: (y * canvas.clientHeight) / view.height };
  }, object);
}

export function runProgram(...words) {
  return execFileSync(join(kRoot, 'build/release/bin/skyview'), words, {
    encoding: 'utf8',
    stdio: ['ignore', 'pipe', 'pipe'],
  });
}

export async function download(page, click) {
  const [file] = await Promise.all([page.waitForEvent('download'), click()]);
  return readFileSync(await file.path(), 'utf8');
}

// Drops a text as a file on the middle of the page.
export async function drop(page, text) {
  await page.evaluate((content) => {
    const data = new DataTransfer();
    data.items.add(new File([content], 'dropped.session'));
    window.dispatchEvent(new DragEvent('drop', { dataTransfer: data, bubbles: true, cancelable: true }));
  }, text);
}

export const toast = (page) => page.locator('.toast');
