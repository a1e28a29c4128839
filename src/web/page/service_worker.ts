// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Keeps the whole site, so that it starts without a network. A new version is
// fetched whole before it is used, and used from the next start on.

export {};

declare const siteFiles: string[];
declare const siteVersion: string;
const scope = self as unknown as ServiceWorkerGlobalScope;
const cacheName = `lumora-${siteVersion}`;

scope.addEventListener('install', (event) => {
    event.waitUntil(caches.open(cacheName).then((cache) =>
        cache.addAll(siteFiles.map((file) => new Request(file, { cache: 'no-cache' })))));
});

scope.addEventListener('activate', (event) => {
    event.waitUntil(caches.keys().then(async (keys) => {
        await Promise.all(keys.filter((key) => key.startsWith('lumora-') && key !== cacheName)
            .map((key) => caches.delete(key)));
    }));
});

scope.addEventListener('fetch', (event) => {
    const url = new URL(event.request.url);
    if (event.request.method !== 'GET' || url.origin !== scope.location.origin) {
        return;
    }
    event.respondWith(caches.open(cacheName)
        .then((cache) => cache.match(event.request, { ignoreSearch: true }))
        .then((kept) => kept ?? fetch(event.request)));
});
