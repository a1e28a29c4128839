// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The site in a browser, for the tests: served, opened, touched.

import { cpSync, existsSync, mkdtempSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { tmpdir } from 'node:os';
import { dirname, join } from 'node:path';
import { after, afterEach, before, describe } from 'node:test';
import { fileURLToPath } from 'node:url';
import { serve } from '../../src/web/page/serve.mjs';

const root = join(dirname(fileURLToPath(import.meta.url)), '../..');
export const page = join(root, 'src/web/page');
export const site = join(root, 'build/wasm/site');
const require = createRequire(join(page, 'package.json'));
export const puppeteer = require('puppeteer-core');
const noChromium = existsSync('/usr/bin/chromium') ? false : 'there is no Chromium here';
export const axeSource = readFileSync(require.resolve('axe-core/axe.min.js'), 'utf8');
// The machine may have much else to do.
export const patience = 60000;
export const phone = { width: 390, height: 844 };
export const tablet = { width: 1024, height: 768 };

export class World {
    host = 'localhost';

    async begin() {
        this.profile = mkdtempSync(join(tmpdir(), 'lumora-web-'));
        this.server = await serve(site);
        this.port = this.server.address().port;
    }

    get url() {
        return `http://${this.host}:${this.port}/`;
    }

    async stopServing() {
        this.server?.closeAllConnections();
        await new Promise((done) => (this.server ? this.server.close(done) : done()));
        this.server = undefined;
    }

    // The site with changed files, at the same address.
    async serveChanged(changes) {
        const { port } = this;
        await this.stopServing();
        const folder = mkdtempSync(join(this.profile, 'site-'));
        cpSync(site, folder, { recursive: true });
        for (const [name, change] of Object.entries(changes)) {
            writeFileSync(join(folder, name), change(readFileSync(join(folder, name), 'utf8')));
        }
        this.server = await serve(folder, port);
    }

    async launch() {
        this.browser = await puppeteer.launch({
            executablePath: '/usr/bin/chromium', userDataDir: join(this.profile, 'chromium'),
            args: ['--no-sandbox', '--disable-gpu'],
        });
        return this.browser;
    }

    // One that a failure left open would be asked first by all others.
    async closeTabs() {
        for (const tab of await this.browser.pages()) {
            if (tab.url() !== 'about:blank') {
                await tab.close();
            }
        }
    }

    // As a power cut would: nothing is asked first.
    async kill() {
        const gone = new Promise((done) => this.browser.process().once('exit', done));
        this.browser.process().kill('SIGKILL');
        await gone;
    }

    // A tab with the list on show. What it says or asks for in error is kept.
    async open(viewport = phone, { languages, dark, hash = '' } = {}) {
        const tab = await this.browser.newPage();
        tab.complaints = [];
        tab.on('console', (line) => {
            if (['error', 'warn'].includes(line.type())) {
                tab.complaints.push(line.text());
            }
        });
        tab.on('pageerror', (error) => tab.complaints.push(String(error)));
        tab.on('request', (request) => {
            const url = new URL(request.url());
            if (!['blob:', 'data:'].includes(url.protocol) && url.port !== String(this.port)) {
                tab.complaints.push(`asks for ${url}`);
            }
        });
        tab.setDefaultTimeout(patience);
        await tab.setViewport(viewport);
        await tab.emulateMediaFeatures([
            { name: 'prefers-color-scheme', value: dark ? 'dark' : 'light' },
            { name: 'prefers-reduced-motion', value: 'reduce' }]);
        if (languages) {
            await tab.evaluateOnNewDocument((wanted) => {
                Object.defineProperty(navigator, 'languages', { get: () => wanted });
            }, languages);
        }
        await tab.goto(this.url + hash);
        return tab;
    }

    async openList(...parts) {
        const tab = await this.open(...parts);
        await tab.waitForSelector('.verb-row .first');
        await tab.waitForSelector('[data-prepared]');
        return tab;
    }

    async end() {
        await this.browser?.close().catch(() => undefined);
        await this.stopServing();
        rmSync(this.profile, { recursive: true, force: true, maxRetries: 5 });
    }
}

// In the page, where an element under another can be pressed too.
export async function press(tab, selector, at = 0) {
    await tab.waitForSelector(selector);
    await tab.evaluate((wanted, index) => {
        const found = [...document.querySelectorAll(wanted)].filter((each) => each.getClientRects().length > 0);
        found.at(index).click();
    }, selector, at);
}

export async function type(tab, text) {
    await tab.evaluate((wanted) => {
        const field = document.querySelector('.search-field');
        field.focus();
        field.value = wanted;
        field.dispatchEvent(new InputEvent('input', { bubbles: true }));
    }, text);
}

export const texts = (tab, selector) => tab.evaluate((wanted) => [...document.querySelectorAll(wanted)]
    .filter((each) => each.getClientRects().length > 0).map((each) => each.textContent.trim()), selector);

export const until = (tab, condition, ...parts) => tab.waitForFunction(condition, { timeout: patience }, ...parts);

// Opens what the text means, and waits for its forms.
export async function openVerb(tab, text) {
    await type(tab, text);
    await until(tab, (wanted) => !document.querySelector('[aria-busy]')
        && [...document.querySelectorAll('.reading .first, .verb-row .first')]
        .some((each) => each.textContent.trim() === wanted && each.getClientRects().length > 0), text);
    await tab.evaluate((wanted) => [...document.querySelectorAll('.reading .first, .verb-row .first')]
        .find((each) => each.textContent.trim() === wanted && each.getClientRects().length > 0).click(), text);
    await until(tab, (wanted) => document.title.startsWith(wanted) && document.querySelector('.form-row'), text);
}

const isStarred = () => document.querySelector('[data-button="favourite"] svg')?.outerHTML;

export async function toggleFavourite(tab) {
    const old = await tab.evaluate(isStarred);
    await press(tab, '[data-button="favourite"]', -1);
    await until(tab, (before) => document.querySelector('[data-button="favourite"] svg')?.outerHTML !== before, old);
}

// The names in the list of favourites, which stays open.
export async function favourites(tab) {
    await press(tab, '.tab', 1);
    await until(tab, () => document.querySelectorAll('.tab')[1].hasAttribute('data-chosen'));
    await new Promise((done) => setTimeout(done, 200));
    return texts(tab, '.lists .verb-row .first');
}

export async function star(tab, verb) {
    if (!(await favourites(tab)).includes(verb)) {
        await openVerb(tab, verb);
        await toggleFavourite(tab);
        await tab.goBack();
        await until(tab, () => document.title === 'Lumora');
    }
}

// A group of tests in one Chromium; each finds no tab open.
export function inChromium(name, tests) {
    describe(name, { skip: noChromium }, () => {
        const world = new World();
        before(async () => {
            await world.begin();
            await world.launch();
        });
        after(() => world.end());
        afterEach(() => world.closeTabs());
        tests(world);
    });
}
