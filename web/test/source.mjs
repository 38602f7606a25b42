// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT

// Sources of the page for tests that want no browser.
import { after } from 'node:test';
import { fileURLToPath } from 'node:url';
import { createServer } from 'vite';

// The module of a source below web/src, 'state/address.ts'.
export async function makeLoader() {
  const root = fileURLToPath(new URL('..', import.meta.url));
  const server = await createServer({
    root,
    logLevel: 'error',
    server: { middlewareMode: true, hmr: false, ws: false },
    appType: 'custom',
    optimizeDeps: { noDiscovery: true },
  });
  after(() => server.close());
  return (path) => server.ssrLoadModule(`/src/${path}`);
}
