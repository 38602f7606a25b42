// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import { defineConfig } from 'vite';

// Addresses are relative, so that the page can be served from any folder. script/web makes the public folder: the
// module and the pack of the data root, which are copied as they are.
export default defineConfig({
  base: './',
  publicDir: '../build/web_public',
  build: { outDir: '../build/web', emptyOutDir: true, target: 'es2022', assetsInlineLimit: 0 },
  worker: { format: 'es' },
});
