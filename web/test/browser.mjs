// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT

// What the tests of the page share: the built page on a server, the distribution's Chromium, and waiting for
// what is shown instead of for time to pass.
import { execFileSync } from 'node:child_process';
import { mkdtempSync, readFileSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { chromium } from 'playwright-core';
import { serve } from '../tools/serve.mjs';

export const kRoot = fileURLToPath(new URL('../..', import.meta.url));
export const kBuilt = join(kRoot, 'build/web');

const kArguments = [
  '--no-sandbox',
  '--use-gl=angle',
  '--use-angle=swiftshader',
  '--enable-unsafe-swiftshader',
];
const kMost = 60000; // milliseconds that anything may take on a busy machine

// 2026-01-15 21:00 UT at 52.5 north, 13.4 east, to the south: Orion.
export const kOrion = {
  latitude: 52.5,
  longitude: 13.4,
  julianDate: 2461056.375,
  azimuth: 180,
  altitude: 35,
  zoom: 1,
  enlargement: 1,
};

// A browser and a server of a folder, for the tests of one file.
export async function startBrowser(folder = kBuilt) {
  const server = await serve(folder);
  const browser = await chromium.launch({ executablePath: '/usr/bin/chromium', args: kArguments });
  const url = `http://127.0.0.1:${server.address().port}/`;
  const stop = async () => {
    await browser.close();
    server.closeAllConnections?.();
    server.close();
  };
  return { browser, server, url, stop };
}

export function waitFor(page, what, argument) {
  return page.waitForFunction(what, argument, { timeout: kMost });
}

// Until the frame of the newest view is drawn and nothing moves.
export function settle(page) {
  return waitFor(page, () => {
    const { stage, hands } = window;
    const { view, frame } = stage;
    return frame && !hands.mover.isMoving && Object.keys(view).every((key) => view[key] === frame.view[key]);
  });
}

// The page with its first frame. `failures` gathers what the page complains of.
export async function openPage(
  { browser, url },
  { view = kOrion, size = { width: 1280, height: 800 }, ...options } = {},
) {
  const context = await browser.newContext({ viewport: size, ...options });
  const page = await context.newPage();
  const failures = [];
  page.on('pageerror', (error) => failures.push(error.message));
  page.on('console', (message) => message.type() === 'error' && failures.push(message.text()));
  await page.goto(url);
  await waitFor(page, () => window.stage?.frame);
  if (view) await show(page, view);
  return { page, context, failures };
}

export async function show(page, view) {
  await page.evaluate((part) => window.stage.change(part), view);
  await settle(page);
}

export const getView = (page) => page.evaluate(() => ({ ...window.stage.view }));

// The picture that skyview draws of a view, as bytes of a PNG.
export function drawByProgram(view, size, ...options) {
  const folder = mkdtempSync(join(tmpdir(), 'sky-'));
  const file = join(folder, 'sky.png');
  const date = new Date((view.julianDate - 2440587.5) * 86400000).toISOString().slice(0, 19);
  const words = [
    '--place',
    `${view.latitude},${view.longitude}`,
    '--zone',
    'UTC',
    '--time',
    `${date}Z`,
    '--look',
    `${view.azimuth},${view.altitude}`,
    '--zoom',
    `${view.zoom}`,
    '--size',
    `${size.width}x${size.height}`,
    '--out',
    file,
  ];
  try {
    execFileSync(join(kRoot, 'build/release/bin/skyview'), [...words, ...options], { stdio: 'pipe' });
    return readFileSync(file);
  } finally {
    rmSync(folder, { recursive: true });
  }
}
