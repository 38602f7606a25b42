// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT

// Serves a folder on the loopback address, as any server of files would:
//
//   node web/tools/serve.mjs FOLDER [PORT]
import { createReadStream, statSync } from 'node:fs';
import { createServer } from 'node:http';
import { extname, join, normalize } from 'node:path';
import { fileURLToPath } from 'node:url';

const kTypes = {
  '.html': 'text/html; charset=utf-8',
  '.js': 'text/javascript; charset=utf-8',
  '.css': 'text/css; charset=utf-8',
  '.json': 'application/json',
  '.webmanifest': 'application/manifest+json',
  '.svg': 'image/svg+xml',
  '.png': 'image/png',
};

// The file of a request below the folder; null for none.
function findFile(folder, url) {
  const path = normalize(decodeURIComponent(new URL(url, 'http://localhost').pathname));
  const file = join(folder, path.endsWith('/') ? join(path, 'index.html') : path);
  const stats = statSync(file, { throwIfNoEntry: false });
  return stats?.isFile() ? { file, size: stats.size } : null;
}

// Resolves with the server once it listens; port 0: any free one.
export function serve(folder, port = 0) {
  const server = createServer((request, response) => {
    const found = findFile(folder, request.url);
    if (!found) {
      response.writeHead(404).end();
      return;
    }
    const type = kTypes[extname(found.file)] ?? 'application/octet-stream';
    response.writeHead(200, {
      'content-type': type,
      'content-length': found.size,
      'cache-control': 'no-cache',
    });
    createReadStream(found.file).pipe(response);
  });
  return new Promise((resolve) => server.listen(port, '127.0.0.1', () => resolve(server)));
}

if (process.argv[1] === fileURLToPath(import.meta.url)) {
  const [folder, port = '8000'] = process.argv.slice(2);
  if (!folder) {
    console.error('usage: serve.mjs FOLDER [PORT]');
    process.exit(2);
  }
  const server = await serve(folder, Number(port));
  console.log(`http://127.0.0.1:${server.address().port}/`);
}
