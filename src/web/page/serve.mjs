// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Serves a folder on this machine: serve.mjs FOLDER [PORT], or as a module.

import { createReadStream, existsSync, statSync } from 'node:fs';
import { createServer } from 'node:http';
import { extname, join, normalize, resolve, sep } from 'node:path';
import { fileURLToPath } from 'node:url';

const types = {
    '.html': 'text/html; charset=utf-8', '.js': 'text/javascript; charset=utf-8', '.css': 'text/css; charset=utf-8',
    '.wasm': 'application/wasm', '.json': 'application/json', '.webmanifest': 'application/manifest+json',
    '.svg': 'image/svg+xml', '.png': 'image/png', '.tsv': 'text/tab-separated-values; charset=utf-8',
};

export function serve(folder, port = 0) {
    const root = resolve(folder);
    const server = createServer((request, response) => {
        const path = decodeURIComponent(new URL(request.url, 'http://localhost').pathname);
        const file = normalize(join(root, path.endsWith('/') ? `${path}index.html` : path));
        if (!file.startsWith(root + sep) || !existsSync(file) || !statSync(file).isFile()) {
            response.writeHead(404).end();
            return;
        }
        response.writeHead(200, {
            'content-type': types[extname(file)] ?? 'application/octet-stream', 'cache-control': 'no-cache',
        });
        createReadStream(file).pipe(response);
    });
    return new Promise((done, fail) => {
        server.on('error', fail);
        server.listen(port, '127.0.0.1', () => done(server));
    });
}

if (process.argv[1] === fileURLToPath(import.meta.url)) {
    const wanted = Number(process.argv[3] ?? 8080);
    // The wish may be taken.
    const server = await serve(process.argv[2], wanted).catch(() => serve(process.argv[2]));
    console.log(`Lumora is at http://localhost:${server.address().port}/ (Ctrl+C ends it)`);
}
