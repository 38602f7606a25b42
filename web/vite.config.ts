// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import { createHash } from 'node:crypto';
import { existsSync, readdirSync, readFileSync } from 'node:fs';
import { join } from 'node:path';
import { defineConfig, type Plugin } from 'vite';

const kPublic = join(__dirname, '../build/web_public');

// The service worker with the names of all files that the page is made of, and a version that changes with
// any of them.
function offline(): Plugin {
  return {
    name: 'offline',
    apply: 'build',
    enforce: 'post',
    generateBundle(_, bundle) {
      const sum = createHash('sha256');
      const names = Object.keys(bundle).filter((name) => name !== 'service_worker.js');
      for (const name of names) {
        const file = bundle[name];
        sum.update(file.type === 'chunk' ? file.code : file.source);
      }
      const publicNames = existsSync(kPublic) ? readdirSync(kPublic) : [];
      for (const name of publicNames) sum.update(readFileSync(join(kPublic, name)));
      const files = ['./', ...names.filter((name) => name !== 'index.html'), ...publicNames];
      const source = readFileSync(join(__dirname, 'src/offline/service_worker.js'), 'utf8')
        .replace('__VERSION__', sum.digest('hex').slice(0, 16))
        .replace('__FILES__', JSON.stringify(files));
      this.emitFile({ type: 'asset', fileName: 'service_worker.js', source });
    },
  };
}

// Addresses are relative, so that the page can be served from any folder. script/web makes the public folder:
// the module and the pack of the data root, which are copied as they are.
export default defineConfig({
  base: './',
  publicDir: kPublic,
  plugins: [offline()],
  build: { outDir: '../build/web', emptyOutDir: true, target: 'es2022', assetsInlineLimit: 0 },
  worker: { format: 'es' },
});
