// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The start of the page: one tab at a time, a worker with the program, and between
// them events and states.

import { Channel } from './channel';
import { showNotice } from './dialogs';
import { button, el } from './dom';
import { Journey } from './journey';
import { Keys } from './keys';
import { Machine } from './machine';
import type { Facts, Keeping, State, Texts } from './messages';
import { OptionsView } from './table_view';
import { Views } from './views';

const languages = ['en', 'fr', 'de', 'es', 'it', 'nl', 'pt'];
// In milliseconds, before the person is asked about another tab.
const patience = 300;
const app = document.getElementById('app') ?? document.body;
// While the worker is being started.
const compiled = WebAssembly.compileStreaming(fetch('lumora.wasm')).catch(() => null);

function language(): string {
    const wanted = navigator.languages.map((tag) => tag.slice(0, 2).toLowerCase());
    return wanted.find((tag) => languages.includes(tag)) ?? 'en';
}

async function fewTexts(): Promise<Texts> {
    try {
        return await (await fetch(`texts-${language()}.json`)).json() as Texts;
    } catch {
        return {};
    }
}

function showMessage(text: string, action?: HTMLElement): void {
    app.replaceChildren(el('main', { class: 'message' }, el('h1', {}, 'Lumora'), el('p', {}, text), action ?? false));
}

const takeOver = 'lumora-take-over';

// Says where Lumora is open and offers to take over.
function askToTakeOver(texts: Texts, answer: () => void): void {
    showMessage(texts['web.tab.open'] ?? 'Lumora is open in another tab.',
        button(texts['web.tab.take'] ?? 'Use it here', 'answer', answer));
}

async function showTaken(): Promise<void> {
    const texts = await fewTexts();
    showMessage(texts['web.tab.taken'] ?? 'Lumora went on in another tab.',
        button(texts['web.tab.take'] ?? 'Use it here', 'answer', () => {
            sessionStorage.setItem(takeOver, 'yes');
            location.reload();
        }));
}

// The lock is held as long as the tab lives, or until another takes it. One that has
// it now may be about to close: the question comes a little later, and goes when the
// lock falls free.
function take(steal: boolean): void {
    let stop: (() => void) | undefined;
    const waiting = new AbortController();
    const ask = async (): Promise<void> => {
        const texts = await fewTexts();
        if (!stop) {
            askToTakeOver(texts, () => {
                waiting.abort();
                app.replaceChildren();
                take(true);
            });
        }
    };
    const question = steal ? 0 : window.setTimeout(() => void ask(), patience);
    navigator.locks.request('lumora', steal ? { steal } : { signal: waiting.signal }, async () => {
        clearTimeout(question);
        app.replaceChildren();
        stop = start();
        await new Promise(() => undefined);
    }).catch(() => {
        if (!waiting.signal.aborted) {
            stop?.();
            void showTaken();
        }
    });
}

function start(): () => void {
    const worker = new Worker('worker.js', { type: 'module' });
    const channel = new Channel(worker, (state) => show(state), (todo) => machine.carryOut(todo));
    const machine = new Machine(channel);
    let views: Views | undefined;
    let journey: Journey | undefined;
    const show = (state: State): void => {
        views?.show(state);
        journey?.update(state);
    };
    channel.listen((message) => {
        if (message.kind === 'started') {
            channel.texts = message.texts;
            OptionsView.version = message.version;
            tellKeeping(channel, message.keeping);
            views = new Views(channel, app);
            // The first state has an address of its own.
            const wanted = location.hash;
            journey = new Journey(channel);
            channel.take(message.answer);
            performance.mark('lumora-list');
            listen(channel);
            new Keys(channel, views);
            journey.follow(wanted);
        } else if (message.kind === 'prepared') {
            document.documentElement.setAttribute('data-prepared', '');
        } else if (message.kind === 'failed') {
            console.error(message.reason);
            if (!views) {
                void fewTexts().then((texts) => showMessage(texts['web.failed'] ?? message.reason,
                    button(texts['web.again'] ?? 'Try again', 'answer', () => location.reload())));
            } else {
                showNotice(channel.text('web.failed'));
            }
        }
    });
    const facts: Facts = {
        languages: [...navigator.languages], width: innerWidth, system: navigator.userAgent,
    };
    document.documentElement.lang = language();
    channel.order({ kind: 'start', facts, texts: `texts-${language()}.json` });
    void compiled.then((module) => channel.order({ kind: 'compiled', module }));
    return () => {
        worker.onmessage = () => worker.terminate();
        channel.order({ kind: 'stop' });
    };
}

function tellKeeping(channel: Channel, keeping: Keeping): void {
    OptionsView.keeping = () => channel.text(`web.kept.${keeping}`);
    if (keeping === 'nothing') {
        showNotice(channel.text('web.kept.nothing'));
    }
    // A refusal changes nothing: the backup file stays offered.
    void (navigator.storage as StorageManager | undefined)?.persist().catch(() => false);
}

function listen(channel: Channel): void {
    const visible = (): void => channel.send('visible', { on: document.visibilityState === 'visible' });
    document.addEventListener('visibilitychange', visible);
    window.addEventListener('pagehide', visible);
    window.addEventListener('resize', () => channel.send('width', { points: innerWidth }));
    for (const kind of ['error', 'unhandledrejection'] as const) {
        window.addEventListener(kind, (event) => {
            const cause: unknown = event instanceof ErrorEvent ? event.message : event.reason;
            channel.send('crash', { text: String(cause) });
        });
    }
}

async function register(): Promise<void> {
    if ('serviceWorker' in navigator && location.protocol !== 'file:') {
        await navigator.serviceWorker.register('service_worker.js').catch((error: unknown) => console.warn(error));
    }
}

take(sessionStorage.getItem(takeOver) !== null);
sessionStorage.removeItem(takeOver);
window.addEventListener('load', () => void register());
