// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The web edition in Chromium and Firefox.

import assert from 'node:assert/strict';
import { existsSync, readdirSync, readFileSync } from 'node:fs';
import { join } from 'node:path';
import { test } from 'node:test';
import { brotliCompressSync, gzipSync } from 'node:zlib';
import {
    axeSource, favourites, inChromium, openVerb, phone, press, puppeteer, site, star, tablet, texts, toggleFavourite, type, until,
    World,
} from './site.mjs';

const noFirefox = existsSync('/usr/bin/firefox-esr') ? false : 'there is no Firefox here';

test('the site is small', () => {
    let brotli = 0;
    let gzip = 0;
    for (const file of readdirSync(site)) {
        const bytes = readFileSync(join(site, file));
        brotli += Math.min(bytes.length, brotliCompressSync(bytes).length);
        gzip += Math.min(bytes.length, gzipSync(bytes, { level: 9 }).length);
    }
    console.log(`brotli ${brotli}, gzip ${gzip} bytes`);
    assert.ok(brotli <= 1.3e6 && gzip <= 1.6e6);
});

async function findings(tab) {
    await tab.evaluate(axeSource);
    const result = await tab.evaluate(() => globalThis.axe.run(document, { resultTypes: ['violations'] }));
    return result.violations.map((each) => {
        const node = each.nodes[0];
        return `${each.id} (${each.nodes.length}): ${node.html.slice(0, 160)} ${node.failureSummary}`;
    });
}

inChromium('in Chromium', (world) => {
    test('shows the list, searches, opens a verb and goes back', async () => {
        const tab = await world.openList();
        assert.equal((await texts(tab, '.verb-row .first'))[0], 'abaisser');
        await openVerb(tab, 'aller');
        assert.equal(new URL(tab.url()).hash, '#verb/aller');
        assert.deepEqual((await texts(tab, '.form-row .form')).slice(0, 3), ['vais', 'vas', 'va']);
        await press(tab, '.form-line');
        await until(tab, () => document.querySelector('dialog .ipa')?.textContent.includes('vɛ'));
        await tab.keyboard.press('Escape');
        await tab.goBack();
        await until(tab, () => document.title === 'Lumora');
        await type(tab, 'irons');
        await until(tab, () => document.querySelector('.reading .first')?.textContent.trim() === 'aller');
        assert.deepEqual(tab.complaints, []);
        await tab.close();
    });

    test('opens the verb of an address', async () => {
        const tab = await world.open(tablet, { hash: '#verb/finir' });
        await until(tab, () => document.title.startsWith('finir'));
        await until(tab, () => document.querySelector('.square .form')?.textContent === 'finis');
        await tab.close();
    });

    test('keeps what it has acknowledged when it is killed', async () => {
        const kept = new Set();
        for (const [round, verbs] of [['manger', 'finir'], ['aimer', 'voir'], ['être', 'savoir']].entries()) {
            const tab = await world.openList();
            for (const verb of verbs) {
                await openVerb(tab, verb);
                await toggleFavourite(tab);
                kept.add(verb);
                await tab.goBack();
                await until(tab, () => document.title === 'Lumora');
            }
            // Killed in the middle of the next one.
            await openVerb(tab, 'partir');
            await press(tab, '[data-button="favourite"]', -1);
            await new Promise((done) => setTimeout(done, round * 3));
            await world.kill();
            await world.launch();
        }
        const tab = await world.openList();
        const shown = new Set(await favourites(tab));
        assert.deepEqual([...kept].filter((verb) => !shown.has(verb)), []);
        await tab.close();
    });

    test('asks a second tab, which may take over', async () => {
        const first = await world.openList();
        await star(first, 'manger');
        const second = await world.open();
        await second.waitForSelector('.message .answer');
        await press(second, '.message .answer');
        await second.waitForSelector('.verb-row .first');
        await first.waitForSelector('.message');
        assert.ok((await favourites(second)).includes('manger'));
        await first.evaluate(() => document.querySelector('.message .answer').click());
        await first.waitForSelector('.verb-row .first');
        const third = await world.open();
        await third.waitForSelector('.message .answer');
        await first.close();
        await third.waitForSelector('.verb-row .first');
    });

    test('opens no verb that took the place of the pressed one', async () => {
        const tab = await world.openList();
        const answered = () => until(tab, () => !document.querySelector('[aria-busy]'));
        for (const [shown, next] of [['finir', 'aller'], ['irons', 'finirons']]) {
            await type(tab, shown);
            await answered();
            const pressed = await tab.evaluate((text) => {
                const field = document.querySelector('.search-field');
                field.value = text;
                field.dispatchEvent(new InputEvent('input', { bubbles: true }));
                return [...document.querySelectorAll('.reading, .verb-row')].filter((each) => each.getClientRects().length > 0)
                    .map((each) => each.click()).length;
            }, next);
            assert.ok(pressed > 0);
            // What was pressed has been answered when this has.
            await type(tab, '');
            await answered();
            assert.equal(await tab.title(), 'Lumora');
        }
    });

    test('speaks the seven languages', async () => {
        for (const language of ['en', 'fr', 'de', 'es', 'it', 'nl', 'pt']) {
            const own = JSON.parse(readFileSync(join(site, `texts-${language}.json`), 'utf8'));
            const tab = await world.openList(phone, { languages: [`${language}-XX`] });
            assert.equal((await texts(tab, '.tab'))[1], own['tabs.favourites']);
            await tab.close();
        }
    });

    test('prints a verb and changes an option that lasts', async () => {
        const tab = await world.openList(tablet);
        await openVerb(tab, 'aller');
        await press(tab, '[data-button="export"]');
        await press(tab, 'dialog .sheet-button', -2);
        await until(tab, () => document.getElementById('printed')?.contentDocument.body.textContent.includes('irai'));
        const page = await (await tab.$('#printed')).contentFrame();
        const paper = await world.browser.newPage();
        await paper.setContent(await page.content());
        const pdf = await paper.pdf();
        assert.equal(Buffer.from(pdf.subarray(0, 4)).toString(), '%PDF');
        await paper.close();
        await press(tab, '[data-button="menu"]');
        await press(tab, '.menu .option', 0);
        const option = '.options-page [role="switch"]';
        await tab.waitForSelector(option);
        const before = await tab.$eval(option, (each) => each.ariaChecked);
        await press(tab, option);
        await until(tab, (old) => document.querySelector('.options-page [role="switch"]').ariaChecked !== old, before);
        await tab.evaluate(() => window.dispatchEvent(new Event('pagehide')));
        assert.deepEqual(tab.complaints, []);
        await tab.reload();
        await tab.waitForSelector('[data-prepared]');
        await press(tab, '[data-button="menu"]');
        await press(tab, '.menu .option', 0);
        await tab.waitForSelector(option);
        assert.notEqual(await tab.$eval(option, (each) => each.ariaChecked), before);
        await press(tab, option);
        await tab.close();
    });

    test('has nothing for axe to find', async () => {
        for (const viewport of [phone, tablet]) {
            for (const dark of [false, true]) {
                const tab = await world.openList(viewport, { dark });
                assert.deepEqual(await findings(tab), [], 'the list');
                await type(tab, 'irons');
                await until(tab, () => document.querySelector('.reading'));
                assert.deepEqual(await findings(tab), [], 'the search');
                await type(tab, '');
                await openVerb(tab, 'aller');
                assert.deepEqual(await findings(tab), [], 'a verb');
                await press(tab, '.form-line');
                await tab.waitForSelector('dialog');
                assert.deepEqual(await findings(tab), [], 'a form');
                await tab.keyboard.press('Escape');
                if (viewport === phone) {
                    await press(tab, '[data-button="back"]');
                    await until(tab, () => document.title === 'Lumora');
                }
                await press(tab, '[data-button="menu"]');
                await tab.waitForSelector('.menu .option');
                assert.deepEqual(await findings(tab), [], 'the menu');
                await press(tab, '.menu .option', 0);
                await tab.waitForSelector('.options-page .option');
                assert.deepEqual(await findings(tab), [], 'the options');
                await tab.close();
            }
        }
    });

    test('can be installed, and starts without a network and after an update', async () => {
        const tab = await world.openList();
        await tab.evaluate(() => navigator.serviceWorker.ready);
        await star(tab, 'manger');
        const session = await tab.createCDPSession();
        const { installabilityErrors } = await session.send('Page.getInstallabilityErrors');
        assert.deepEqual(installabilityErrors.filter((each) => each.errorId !== 'in-incognito'), []);
        await tab.close();
        await world.stopServing();
        const offline = await world.openList();
        assert.ok((await favourites(offline)).includes('manger'));
        await offline.close();
        await world.serveChanged({
            'bundle.json': (text) => JSON.stringify({ ...JSON.parse(text), CFBundleShortVersionString: '9.9.9-updated' }),
            'service_worker.js': (text) => text.replace(/[0-9a-f]{8}(?=["`])/, '99999999'),
        });
        const old = await world.openList();
        await old.evaluate(async () => (await navigator.serviceWorker.ready).update());
        await until(old, async () => (await navigator.serviceWorker.ready).waiting !== null);
        await old.close();
        const updated = await world.openList();
        const version = await updated.evaluate(async () => (await (await fetch('bundle.json')).json()).CFBundleShortVersionString);
        assert.equal(version, '9.9.9-updated');
        assert.ok((await favourites(updated)).includes('manger'));
        await updated.close();
    });
});

test('in Firefox it shows, searches and keeps', { skip: noFirefox }, async () => {
    const world = new World();
    await world.begin();
    world.browser = await puppeteer.launch({ browser: 'firefox', executablePath: '/usr/bin/firefox-esr' });
    try {
        const tab = await world.browser.newPage();
        await tab.setViewport(phone);
        await tab.goto(world.url);
        await tab.waitForSelector('[data-prepared]', { timeout: 60000 });
        await openVerb(tab, 'aller');
        await toggleFavourite(tab);
        await tab.goto(world.url);
        await tab.waitForSelector('.verb-row .first');
        assert.deepEqual(await favourites(tab), ['aller']);
    } finally {
        await world.end();
    }
});
