// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT

// Bundles the page into build/web: scripts and styles named after their bytes, the module and the pack of the
// data root as script/web made them, the notices of what is bundled, and the service worker that keeps all of
// it. Addresses are relative, so that the page can be served from any folder.
import { build } from 'esbuild';
import { createHash } from 'node:crypto';
import { cpSync, mkdirSync, readFileSync, readdirSync, rmSync, writeFileSync } from 'node:fs';
import { basename, join } from 'node:path';
import { fileURLToPath } from 'node:url';

const kWeb = fileURLToPath(new URL('..', import.meta.url));
const kPublic = join(kWeb, '../build/web_public');
const kOut = join(kWeb, '../build/web');
const kBundled = ['@bjorn3/browser_wasi_shim', 'earcut'];

// The name of what a source below web/src becomes, relative to the page.
async function bundle(source, define = {}) {
  const { metafile } = await build({
    entryPoints: [join(kWeb, 'src', source)],
    entryNames: '[name]-[hash]',
    outdir: kOut,
    bundle: true,
    minify: true,
    format: 'esm',
    target: 'es2022',
    legalComments: 'none',
    define,
    metafile: true,
    logLevel: 'warning',
  });
  return basename(Object.keys(metafile.outputs)[0]);
}

// The licence of the project, the notices of its data, and the licences of the packages that are in the bundle.
function readNotices() {
  const own = ['LICENSE', 'NOTICE.md'].map((file) => readFileSync(join(kWeb, '..', file), 'utf8'));
  const others = kBundled.map((name) => {
    const folder = join(kWeb, 'node_modules', name);
    const texts = readdirSync(folder).filter((file) => /^(licen[cs]e|copying)/i.test(file));
    if (texts.length === 0) throw new Error(`${name} has no text of its licence`);
    return [name, ...texts.map((file) => readFileSync(join(folder, file), 'utf8'))].join('\n\n');
  });
  return [...own, ...others].join('\n\n');
}

// A template of web/ with its words replaced, each of which must be there.
function fill(template, words) {
  let text = readFileSync(join(kWeb, template), 'utf8');
  for (const [word, value] of Object.entries(words)) {
    if (!text.includes(word)) throw new Error(`${template} lacks ${word}`);
    text = text.replace(word, value);
  }
  return text;
}

rmSync(kOut, { recursive: true, force: true });
mkdirSync(kOut, { recursive: true });
cpSync(kPublic, kOut, { recursive: true });
const worker = await bundle('core/worker.ts');
const script = await bundle('app.ts', { kWorkerFile: JSON.stringify(worker) });
const style = await bundle('style/page.css');
writeFileSync(join(kOut, 'index.html'), fill('index.html', { 'src/style/page.css': style, 'src/app.ts': script }));
writeFileSync(join(kOut, 'NOTICE.txt'), readNotices());

const files = readdirSync(kOut);
const sum = createHash('sha256');
for (const name of files) sum.update(readFileSync(join(kOut, name)));
const kept = ['./', ...files.filter((name) => name !== 'index.html')];
writeFileSync(
  join(kOut, 'service_worker.js'),
  fill('src/offline/service_worker.js', {
    __VERSION__: sum.digest('hex').slice(0, 16),
    __FILES__: JSON.stringify(kept),
  }),
);
