// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT

// Keeps the page in the browser, so that it works without its server (offline/service_worker.ts). Where that
// is not possible, as from a folder or in a private window, the page works all the same.
export function keepOffline(): void {
  if (!('serviceWorker' in navigator)) return;
  navigator.serviceWorker.register(new URL('service_worker.js', document.baseURI)).catch(() => {});
}
