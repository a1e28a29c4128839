// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What a person does with the web edition besides looking verbs up, in Chromium.

import assert from 'node:assert/strict';
import { existsSync, readFileSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { test } from 'node:test';
import {
    favourites, inChromium, openVerb, phone, press, site, star, tablet, texts, type, until, World,
} from './site.mjs';

const english = JSON.parse(readFileSync(join(site, 'texts-en.json'), 'utf8'));
const hasText = (selector, wanted) => [...document.querySelectorAll(selector)]
    .some((each) => each.textContent.includes(wanted));

async function showOptions(tab) {
    await press(tab, '[data-button="menu"]');
    await press(tab, '.menu .option', 0);
    await tab.waitForSelector('.options-page .option');
}

// A voice as browsers have them; it tells of words or not. There is none where the
// tests run.
function addVoice(tellsOfWords) {
    const voice = { lang: 'fr-FR', name: 'Marie', default: true };
    globalThis.spokenTexts = [];
    globalThis.SpeechSynthesisUtterance = class { constructor(text) { this.text = text; } };
    Object.defineProperty(globalThis, 'speechSynthesis', { value: {
        getVoices: () => [voice],
        cancel: () => undefined,
        speak: (said) => {
            globalThis.spokenTexts.push(said.text);
            setTimeout(() => said.onstart({}), 5);
            if (tellsOfWords) {
                setTimeout(() => said.onboundary({ charIndex: 0, charLength: 2 }), 10);
                setTimeout(() => said.onend({}), 300);
            }
        },
    } });
}

inChromium('used in Chromium', (world) => {
    test('obeys the keys of the window', async () => {
        const tab = await world.openList(tablet);
        const keys = tab.keyboard;
        await keys.press('F1');
        await until(tab, () => document.querySelector('dialog .keys')?.textContent.includes('F10'));
        await keys.press('F1');
        await until(tab, () => !document.querySelector('dialog'));
        await keys.press('F10');
        await tab.waitForSelector('.menu .option');
        await keys.press('Escape');
        await until(tab, () => !document.querySelector('.menu'));
        await openVerb(tab, 'aller');
        const focused = () => tab.evaluate(() => document.activeElement.closest('.scroller, .verb-page, .moods')?.className);
        const visited = new Set();
        for (let step = 0; step < 3; ++step) {
            await keys.press('F6');
            visited.add(await focused());
        }
        assert.equal(visited.size, 3, [...visited].join());
        await tab.focus('.moods [aria-pressed="true"]');
        await keys.press('ArrowRight');
        await until(tab, () => document.querySelectorAll('.moods button')[1].ariaPressed === 'true'
            && document.activeElement === document.querySelectorAll('.moods button')[1]);
        const nextVerb = await tab.$eval('.neighbour:last-child', (each) => each.textContent.trim());
        await keys.down('Control');
        await keys.press('PageDown');
        await until(tab, (name) => document.title.startsWith(name), nextVerb);
        await keys.press('2');
        await until(tab, () => document.querySelectorAll('.tab')[1].hasAttribute('data-chosen'));
        await keys.press('f');
        await until(tab, () => document.activeElement.matches('.search-field'));
        await keys.up('Control');
        assert.deepEqual(tab.complaints, []);
    });

    test('narrows the list, and a finger goes from mood to mood', async () => {
        const tab = await world.openList({ ...phone, hasTouch: true });
        await press(tab, '.chips .tool', 0);
        await until(tab, () => document.querySelector('.lists .verb-row .first')?.textContent.trim() === 'abandonner');
        await press(tab, '.chips .tool', 0);
        await until(tab, () => document.querySelector('.lists .verb-row .first')?.textContent.trim() === 'abaisser');
        await openVerb(tab, 'aller');
        const row = await (await tab.$('.tense-rows .form-row')).boundingBox();
        const mood = () => [...document.querySelectorAll('.moods button')].findIndex((each) => each.ariaPressed === 'true');
        const before = await tab.evaluate(mood);
        await tab.touchscreen.touchStart(300, row.y + 10);
        for (const x of [260, 200, 140, 100]) {
            await tab.touchscreen.touchMove(x, row.y + 12);
        }
        await tab.touchscreen.touchEnd();
        await until(tab, (old) => document.querySelectorAll('.moods button')[old + 1]?.ariaPressed === 'true', before);
    });

    test('speaks where there is a voice, and says where there is none', async () => {
        const silent = await world.openList();
        await openVerb(silent, 'aller');
        await press(silent, '.form-row .play');
        await until(silent, hasText, '.notice', english['web.voice.none']);
        await silent.close();
        for (const tellsOfWords of [true, false]) {
            const tab = await world.browser.newPage();
            await tab.evaluateOnNewDocument(addVoice, tellsOfWords);
            await tab.goto(`${world.url}#verb/aller`);
            await tab.waitForSelector('.form-row .play');
            const row = await tab.$eval('.form-line', (each) => each.textContent.replace(/\s/g, ''));
            await press(tab, '.form-row .play');
            await until(tab, () => document.querySelector('.form-row [data-running]'));
            await until(tab, () => !document.querySelector('.form-row [data-running]'));
            assert.deepEqual(await tab.evaluate(() => globalThis.spokenTexts.map((each) => each.replace(/\s/g, ''))), [row]);
            await tab.close();
        }
    });

    test('saves what is the person’s and takes it back, and writes to us', async () => {
        const tab = await world.openList();
        await star(tab, 'manger');
        const session = await tab.createCDPSession();
        await session.send('Browser.setDownloadBehavior', { behavior: 'allow', downloadPath: world.profile });
        await showOptions(tab);
        await press(tab, '[data-button="backup"]');
        await press(tab, 'dialog .answer', 0);
        const saved = join(world.profile, 'lumora.json');
        for (let tries = 0; tries < 200 && !existsSync(saved); ++tries) {
            await new Promise((done) => setTimeout(done, 50));
        }
        const backup = JSON.parse(readFileSync(saved, 'utf8'));
        const favourite = backup.favourites.find((each) => each.french === 'manger');
        assert.ok(favourite, JSON.stringify(backup));
        backup.favourites = [{ french: 'finir' }];
        const other = join(world.profile, 'other.json');
        writeFileSync(other, JSON.stringify(backup));
        await press(tab, 'dialog .answer');
        await until(tab, () => !document.querySelector('dialog'));
        await press(tab, '[data-button="backup"]');
        await tab.waitForSelector('dialog .answer');
        const [chooser] = await Promise.all([tab.waitForFileChooser(), press(tab, 'dialog .answer', 1)]);
        await chooser.accept([other]);
        await until(tab, hasText, 'dialog', english['backup.restore.done']);
        await press(tab, 'dialog .answer');
        await tab.evaluate(() => {
            HTMLAnchorElement.prototype.click = function () { globalThis.clicked = this.href; };
        });
        await press(tab, '.about .link', -1);
        await until(tab, () => globalThis.clicked?.startsWith('mailto:'));
        await press(tab, '[data-button="done"]');
        await until(tab, () => !document.querySelector('.modal'));
        assert.ok((await favourites(tab)).includes('finir'));
    });

    test('keeps a copy where the browser has no private files', async () => {
        const { profile, port } = world;
        await world.closeTabs();
        await world.serveChanged({
            'worker.js': (text) => `delete FileSystemFileHandle.prototype.createSyncAccessHandle;${text}`,
        });
        // Another origin, which has neither files nor a service worker.
        const there = Object.assign(new World(), { profile, port, browser: world.browser, host: '127.0.0.1' });
        const tab = await there.openList();
        await star(tab, 'manger');
        await showOptions(tab);
        await until(tab, hasText, '.options-page', english['web.kept.copy']);
        await tab.close();
        const again = await there.openList();
        assert.deepEqual(await favourites(again), ['manger']);
    });

    test('holds text of twice the size', async () => {
        for (const viewport of [phone, tablet]) {
            const tab = await world.openList(viewport);
            await tab.evaluate(() => {
                const sheet = new CSSStyleSheet();
                sheet.replaceSync(':root { font-size: 200% !important }');
                document.adoptedStyleSheets = [sheet];
            });
            const tooWide = () => tab.evaluate(() => [...document.querySelectorAll('body *')]
                .filter((each) => each.getClientRects().length > 0 && each.scrollWidth > each.clientWidth + 1
                    && getComputedStyle(each).overflowX !== 'hidden' && getComputedStyle(each).display !== 'inline')
                .map((each) => `${each.className || each.tagName} ${each.scrollWidth} > ${each.clientWidth}`));
            assert.deepEqual(await tooWide(), [], 'the list');
            await type(tab, 'irons');
            await until(tab, () => document.querySelector('.reading'));
            assert.deepEqual(await tooWide(), [], 'the search');
            await openVerb(tab, 'aller');
            assert.deepEqual(await tooWide(), [], 'a verb');
            await tab.close();
        }
    });
});
