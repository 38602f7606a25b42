// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT

// Keeps the whole page in the browser's cache when it is first loaded, and answers from there: the page works
// without its server, and all its files are those of one build. A new build is another worker with another
// cache, which takes over when the last page of the old one is closed. The build writes the two constants
// (web/tools/build.mjs).
const kVersion = '__VERSION__';
const kFiles = __FILES__;

const kPrefix = 'sky-';

self.addEventListener('install', (event) => {
  const fill = async () => {
    const cache = await caches.open(kPrefix + kVersion);
    // What the page has just loaded comes from the browser's own cache where the server lets it.
    await cache.addAll(kFiles);
  };
  event.waitUntil(fill());
});

self.addEventListener('activate', (event) => {
  const clean = async () => {
    for (const name of await caches.keys()) {
      if (name.startsWith(kPrefix) && name !== kPrefix + kVersion) await caches.delete(name);
    }
    await self.clients.claim();
  };
  event.waitUntil(clean());
});

self.addEventListener('fetch', (event) => {
  const url = new URL(event.request.url);
  if (event.request.method !== 'GET' || url.origin !== self.location.origin) return;
  const answer = async () => {
    const cache = await caches.open(kPrefix + kVersion);
    // A page is the same whatever its address asks for behind the question mark.
    const known = await cache.match(event.request, { ignoreSearch: event.request.mode === 'navigate' });
    return known ?? fetch(event.request);
  };
  event.respondWith(answer());
});
