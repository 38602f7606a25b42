// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT

// Sources of the page for tests that want no browser.
import { build } from 'esbuild';
import { join } from 'node:path';
import { kRoot } from './browser.mjs';

// The module of a source below web/src, 'state/address.ts'.
export async function loadSource(path) {
  const { outputFiles } = await build({
    entryPoints: [join(kRoot, 'web/src', path)],
    bundle: true,
    format: 'esm',
    write: false,
    logLevel: 'warning',
  });
  return import(`data:text/javascript;base64,${Buffer.from(outputFiles[0].contents).toString('base64')}`);
}
