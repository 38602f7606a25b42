// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { startBrowser, waitFor } from './browser.mjs';

test('after the first load the page needs no server', async () => {
  const site = await startBrowser();
  const page = await site.browser.newPage();
  await page.goto(site.url);
  await waitFor(page, () => window.stage?.frame);
  await page.evaluate(async () => (await navigator.serviceWorker.ready).active.state);
  await waitFor(page, () => navigator.serviceWorker.controller?.state === 'activated');
  site.server.closeAllConnections();
  await new Promise((resolve) => site.server.close(resolve));
  await page.reload();
  await waitFor(page, () => window.stage?.frame);
  assert.ok((await page.evaluate(() => stage.meter.marks)) > 0);
  await page.goto(`${site.url}?from=a-link#somewhere`);
  await waitFor(page, () => window.stage?.frame);
  await site.browser.close();
});
