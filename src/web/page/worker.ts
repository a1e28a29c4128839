// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The worker: loads the program, gives it its files, hands events to it and its
// answers back.

import createModule from 'lumora-module';
import { KeptRows } from './kept_rows';
import type { Answer, Facts, FromWorker, Keeping, Texts, ToWorker } from './messages';
import type { LumoraModule } from './module';
import { FilePool, isTaken, mountPool } from './pool_files';
import { Scripts } from './scripts';

const resources = ['bundle.json', 'verbs.tsv', 'models.tsv', 'retired_ids.tsv', 'mustache.min.js',
    'export_html.mustache', 'export_txt.mustache'];
const keptTexts = ['config/settings.json', 'config/view.json', 'config/analytics.json'];
const rescued = 'data/rescue.json';
const scope = self as unknown as DedicatedWorkerGlobalScope;

let program: LumoraModule | undefined;
let pool: FilePool | undefined;
let rows: KeptRows | undefined;

const say = (message: FromWorker): void => scope.postMessage(message);

async function fetched(name: string): Promise<Uint8Array<ArrayBuffer>> {
    const response = await fetch(name);
    if (!response.ok) {
        throw new Error(`${name}: ${response.status}`);
    }
    return new Uint8Array(await response.arrayBuffer());
}

async function openFiles(module: LumoraModule, opening: Promise<FilePool>): Promise<Keeping> {
    try {
        pool = await opening;
        mountPool(module.FS, pool, '/kept');
        return 'files';
    } catch (error) {
        // Another tab's files are no reason to begin anew beside them.
        if (isTaken(error)) {
            throw error;
        }
    }
    for (const folder of ['/kept', '/kept/data', '/kept/config', '/kept/state']) {
        module.FS.mkdir(folder);
    }
    try {
        rows = await KeptRows.open();
        for (const name of [...keptTexts, rescued]) {
            const text = await rows.read(name);
            if (text !== undefined) {
                module.FS.writeFile(`/kept/${name}`, text);
            }
        }
        return 'copy';
    } catch {
        rows = undefined;
        return 'nothing';
    }
}

// The page has compiled it; where it cannot, it is done here.
let takeCompiled: (module: WebAssembly.Module | null) => void;
const compiled = new Promise<WebAssembly.Module | null>((resolve) => { takeCompiled = resolve; });

async function load(scripts: Scripts): Promise<LumoraModule> {
    const module = await compiled ?? await WebAssembly.compile(await fetched('lumora.wasm'));
    return new Promise((resolve, reject) => {
        createModule({
            locateFile: (name) => name, scripts, print: console.log, printErr: console.error,
            instantiateWasm: (imports, ready) => {
                WebAssembly.instantiate(module, imports).then(ready, reject);
                return {};
            },
        }).then(resolve, reject);
    });
}

function call(name: string, ...values: string[]): string {
    return program?.ccall(name, 'string', values.map(() => 'string'), values) as string;
}

// Before the answer goes out: what is acknowledged is kept.
async function keep(): Promise<void> {
    if (!rows || !program) {
        return;
    }
    const own = call('lumora_user_rows');
    if (own !== '') {
        await rows.write(rescued, own);
    }
    for (const name of keptTexts) {
        if (program.FS.analyzePath(`/kept/${name}`).exists) {
            await rows.write(name, program.FS.readFile(`/kept/${name}`, { encoding: 'utf8' }));
        }
    }
}

function startTimers(answer: string): void {
    for (const todo of (JSON.parse(answer) as Answer).todo ?? []) {
        if (todo.do === 'timer') {
            setTimeout(() => void handle(0, { event: 'timer', timer: todo.timer }), todo.milliseconds);
        }
    }
}

async function handle(number: number, event: object): Promise<void> {
    const answer = call('lumora_handle', JSON.stringify(event));
    if (answer.includes('"do":"timer"')) {
        startTimers(answer);
    }
    try {
        await keep();
    } catch (error) {
        console.error(error);
    }
    say({ kind: 'answer', number, answer });
    void pool?.keepSpare();
}

// A little at a time, so that events come between.
function prepare(): void {
    if (program?.ccall('lumora_prepare_more', 'number', [], []) === 1) {
        setTimeout(prepare);
    } else {
        say({ kind: 'prepared' });
        // What is known only now may narrow the list.
        void handle(0, { event: 'start' });
    }
}

async function start(facts: Facts, textsFile: string): Promise<void> {
    const scripts = new Scripts();
    // Meanwhile; whether it fails is asked later.
    const opening = FilePool.open('lumora');
    opening.catch(() => undefined);
    const [module, texts, ...contents] = await Promise.all([
        load(scripts),
        fetched(textsFile),
        ...resources.map(fetched),
    ]);
    module.FS.mkdir('/share');
    resources.forEach((name, at) => {
        module.FS.writeFile(`/share/${name}`, contents[at] ?? '');
    });
    module.FS.writeFile('/share/texts.json', texts);
    const keeping = await openFiles(module, opening);
    program = module;
    const answer = call('lumora_start', JSON.stringify(facts));
    startTimers(answer);
    const bundle = JSON.parse(module.FS.readFile('/share/bundle.json', { encoding: 'utf8' })) as Texts;
    say({
        kind: 'started', keeping, answer, version: bundle['CFBundleShortVersionString'] ?? '',
        texts: JSON.parse(new TextDecoder().decode(texts)) as Texts,
    });
    setTimeout(prepare, 50);
}

let queue = Promise.resolve();

scope.onmessage = (message: MessageEvent<ToWorker>): void => {
    const order = message.data;
    if (order.kind === 'compiled') {
        takeCompiled(order.module);
        return;
    }
    // One after another: what is kept goes out in the order of the events.
    queue = queue.then(async () => {
        if (order.kind === 'start') {
            await start(order.facts, order.texts);
        } else if (order.kind === 'event') {
            await handle(order.number, order.event);
        } else {
            program?.ccall('lumora_stop', null, [], []);
            await keep().catch(() => undefined);
            program = undefined;
            pool?.close();
            say({ kind: 'stopped' });
        }
    }).catch((error: unknown) => say({ kind: 'failed', reason: String(error) }));
};
