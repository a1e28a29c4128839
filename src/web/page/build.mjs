// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Puts the site together: build.mjs SOURCE_FOLDER BUILD_FOLDER VERSION. The styles,
// scripts and pictures of the page, the program and its tables.

import { createHash } from 'node:crypto';
import { execFileSync } from 'node:child_process';
import { copyFileSync, mkdirSync, readdirSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { basename, dirname, join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { build } from 'esbuild';
import { themeCss } from './theme.mjs';

const here = dirname(fileURLToPath(import.meta.url));
const [source, binary, version] = process.argv.slice(2);
const generated = join(binary, 'page');
const site = join(binary, 'site');
const read = (...parts) => readFileSync(join(...parts), 'utf8');
const write = (name, content) => writeFileSync(join(site, name), content);

// The texts of a language, by their keys.
function textsOf(file) {
    const entities = { '&amp;': '&', '&lt;': '<', '&gt;': '>', '&quot;': '"', '&apos;': "'" };
    const texts = {};
    for (const [, id, text] of read(file).matchAll(
        /<message id="([^"]+)">[\s\S]*?<translation>([\s\S]*?)<\/translation>/g)) {
        texts[id] = text.replace(/&\w+;/g, (entity) => entities[entity] ?? entity);
    }
    return texts;
}

function fingerprint(files) {
    const hash = createHash('sha256');
    files.forEach((file) => hash.update(readFileSync(file)));
    return hash.digest('hex').slice(0, 8);
}

// Comments and empty lines say nothing to the program.
const bare = (table) => read(table).split('\n').filter((line) => !/^(#|$)/.test(line)).join('\n') + '\n';

rmSync(site, { recursive: true, force: true });
mkdirSync(site, { recursive: true });

const tables = ['verbs.tsv', 'models.tsv', 'retired_ids.tsv'];
for (const table of tables) {
    write(table, bare(join(source, 'content', table)));
}
// Whatever makes another database is another version to the program.
const made = fingerprint([...tables.map((table) => join(source, 'content', table)),
    join(source, 'tools/verbdb/database_writer.cpp'), join(source, 'tools/verbdb/helper_tables.cpp')]);
write('bundle.json', JSON.stringify({
    CFBundleIdentifier: 'com.brindle.lumora', CFBundleShortVersionString: `${version}-${made}`, CFBundleVersion: '1',
}));
for (const name of ['export_html.mustache', 'export_txt.mustache', 'mustache.min.js']) {
    copyFileSync(join(binary, 'share/lumora', name), join(site, name));
}
const texts = join(source, 'resources/texts');
for (const file of readdirSync(texts).filter((name) => name.endsWith('.ts'))) {
    write(`texts-${/_(\w+)\.ts$/.exec(file)[1]}.json`, JSON.stringify(textsOf(join(texts, file))));
}

const pictures = join(source, 'resources/icons');
const icons = Object.fromEntries(readdirSync(pictures).filter((name) => name.endsWith('.svg'))
    .map((name) => [basename(name, '.svg'), read(pictures, name).replace(/<!--[\s\S]*?-->/g, '').trim()]));
const inlined = {
    name: 'inlined',
    setup(build) {
        build.onResolve({ filter: /^lumora-icons$/ }, () => ({ path: 'icons', namespace: 'inlined' }));
        build.onLoad({ filter: /.*/, namespace: 'inlined' },
            () => ({ contents: JSON.stringify(icons), loader: 'json' }));
        build.onResolve({ filter: /^lumora-module$/ }, () => ({ path: join(generated, 'lumora.mjs') }));
        // What the module would use under node.
        build.onResolve({ filter: /^(fs|path|crypto|url|ws|perf_hooks|worker_threads)$/ },
            (found) => ({ path: found.path, external: true }));
    },
};
const options = {
    bundle: true, minify: true, format: 'esm', target: 'es2022', charset: 'utf8', outdir: site, plugins: [inlined],
    logLevel: 'warning',
};
await build({ ...options, entryPoints: ['main.ts', 'worker.ts'].map((name) => join(here, name)) });
const css = await build({ ...options, entryPoints: [join(here, 'style.css')], write: false });
write('style.css', themeCss(read(source, 'src/qt/qml/controls/Theme.qml')) + css.outputFiles[0].text);
copyFileSync(join(generated, 'lumora.wasm'), join(site, 'lumora.wasm'));

// Installed, it is a program among others: its picture in the sizes they ask for.
const emblem = join(source, 'packaging/icons/com.brindle.lumora.svg');
for (const size of [192, 512]) {
    execFileSync('rsvg-convert', ['-w', size, '-h', size, '-o', join(site, `icon-${size}.png`), emblem]);
}
copyFileSync(emblem, join(site, 'icon.svg'));
write('manifest.webmanifest', read(here, 'manifest.json'));
write('index.html', read(here, 'index.html'));

const files = readdirSync(site).sort();
await build({
    ...options, entryPoints: [join(here, 'service_worker.ts')],
    define: {
        siteFiles: JSON.stringify(['./', ...files.filter((name) => name !== 'index.html')]),
        siteVersion: JSON.stringify(fingerprint(files.map((name) => join(site, name)))),
    },
});
