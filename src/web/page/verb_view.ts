// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A verb: its card, its moods, its forms as a table or, where there is room, as
// squares.

import { showSheet } from './dialogs';
import { button, el, fillSegments, icon, isShown } from './dom';
import type { Cell, FormSheet, LineStyle, Squares, TableState, TenseNote, VerbState } from './messages';
import { playControl } from './rings';
import { ScreenView } from './screen_view';

const squaresFrom = 560;
// Farther than a finger wanders that scrolls.
const swipeWidth = 70;

export function formText(text: string, lineStyle: LineStyle): HTMLElement {
    const runs = lineStyle.runs.map((run) => el('span', { class: `run-${run.style}` }, run.text));
    return el('span', { class: 'form', lang: 'fr' }, ...(runs.length > 0 ? runs : [text]));
}

function leadingText(text: string, lineStyle: LineStyle): HTMLElement {
    return el('span', { class: 'leading' },
        lineStyle.caption !== '' && el('span', { class: 'caption' }, lineStyle.caption),
        text === '' ? lineStyle.hint : el('span', { lang: 'fr' }, text));
}

export class VerbView extends ScreenView<VerbState> {
    private readonly select = el('p', { class: 'select' });
    private readonly nothing = el('div', { class: 'nothing' }, icon('AboutIcon'), this.select,
        el('p', { class: 'second' }, this.channel.text('select.hint')));
    private readonly moods = el('div', { class: 'moods', role: 'group', 'aria-label': this.channel.text('verb.moods') });
    private readonly page = el('div', { class: 'verb-page', tabindex: 0, role: 'group' });
    private readonly card = el('div', { class: 'card' });
    private readonly tools = el('div', { class: 'tools' });
    private readonly rows = el('div', { class: 'tense-rows' });
    private readonly squares = el('div', { class: 'squares' });
    private table: TableState | undefined;
    private collection: Squares | undefined;
    private told: Record<string, string> = {};
    private opened = -1;
    private spoken = false;
    private touched: PointerEvent | undefined;

    constructor(...parts: ConstructorParameters<typeof ScreenView>) {
        super(...parts);
        this.content.append(this.nothing, this.moods, this.page);
        this.page.append(this.card, this.tools, this.rows, this.squares);
        new ResizeObserver(() => {
            this.element.classList.toggle('wide', this.content.clientWidth >= squaresFrom);
        }).observe(this.content);
        this.rows.addEventListener('pointerdown', (event) => {
            this.touched = event.pointerType === 'mouse' ? undefined : event;
        });
        this.rows.addEventListener('pointerup', (event) => this.swiped(event));
        for (const kind of ['keydown', 'keyup'] as const) {
            this.page.addEventListener(kind, (event) => this.key(event));
        }
    }

    // To a neighbour in the list.
    goOn(places: number): void {
        this.send('neighbour', { places });
    }

    // False where nothing is being spoken.
    stop(): boolean {
        if (this.spoken) {
            this.send('stop');
        }
        return this.spoken;
    }

    playTopTense(): void {
        const top = this.page.getBoundingClientRect().top;
        const below = [...this.page.querySelectorAll<HTMLElement>('[data-tense]')].filter(isShown)
            .filter((each) => each.getBoundingClientRect().bottom > top + 1);
        this.send('playTense', { tense: Number(below[0]?.dataset['tense'] ?? 0) });
    }

    // A finger that moves aside goes from mood to mood.
    private swiped(event: PointerEvent): void {
        const start = this.touched;
        this.touched = undefined;
        const aside = start ? event.clientX - start.clientX : 0;
        const moods = this.moods.children;
        const next = [...moods].findIndex((each) => each.ariaPressed === 'true') + (aside < 0 ? 1 : -1);
        if (start && Math.abs(aside) > swipeWidth && Math.abs(aside) > 2 * Math.abs(event.clientY - start.clientY)
            && next >= 0 && next < moods.length) {
            this.send('mood', { segment: next });
        }
    }

    // Enter tells of a form, which is what a button does; the space bar says it.
    private key(event: KeyboardEvent): void {
        const at = event.target instanceof HTMLElement ? event.target : this.page;
        const step = { ArrowUp: -1, ArrowDown: 1 }[event.key];
        if (event.key === ' ' && at.matches('.form-line')) {
            event.preventDefault();
            const play = at.nextElementSibling;
            if (event.type === 'keyup' && play instanceof HTMLElement) {
                play.click();
            }
        } else if (step !== undefined && event.type === 'keydown' && !event.ctrlKey && !event.altKey) {
            const lines = [...this.page.querySelectorAll<HTMLElement>('.form-line, .tense-title')].filter(isShown);
            const next = lines[lines.indexOf(at) + step];
            if (next) {
                event.preventDefault();
                next.focus();
            }
        }
    }

    protected override update(state: VerbState): void {
        this.select.textContent = state.select ?? '';
        this.nothing.hidden = state.select === null || state.verb !== undefined;
        this.page.hidden = this.moods.hidden = state.verb === undefined;
        if (state.verb === undefined) {
            return;
        }
        this.page.setAttribute('aria-label', state.bar.title);
        this.spoken = state.spoken !== '';
        this.when('moods', [state.moods, state.mood], () => this.drawMoods(state));
        this.when('card', [state.card, state.summary, state.cardOpen], () => this.drawCard(state));
        this.when('tools', [state.voice, state.marks, state.spoken, state.previous, state.next],
            () => this.drawTools(state));
        if (state.table.layout) {
            this.table = state.table;
            this.drawRows(state.table, state);
        }
        if (state.collection) {
            this.collection = state.collection;
            this.drawSquares(this.collection);
        }
        if (state.opened >= 0 && this.opened !== state.opened) {
            this.rows.querySelector(`[data-row="${state.opened}"]`)?.scrollIntoView({ block: 'center' });
        }
        this.opened = state.opened;
    }

    private send(event: string, parts: Record<string, unknown> = {}): void {
        this.channel.send(event, { screen: this.number, ...parts });
    }

    // Draws a part only where what it shows has changed: else the focus is lost.
    private when(part: string, shown: unknown, draw: () => void): void {
        const told = JSON.stringify(shown);
        if (this.told[part] !== told) {
            this.told[part] = told;
            draw();
        }
    }

    private drawMoods(state: VerbState): void {
        this.moods.hidden = state.moods.length === 0;
        fillSegments(this.moods, state.moods, state.mood, (segment) => this.send('mood', { segment }));
        this.page.scrollTop = 0;
    }

    private drawCard(state: VerbState): void {
        this.card.replaceChildren();
        this.card.hidden = state.summary === '' && state.card.length === 0;
        const toggle = button('', 'summary', () => this.send('card', { open: !state.cardOpen }),
            el('span', {}, state.summary || this.channel.text('card.about')), icon('disclosure'));
        toggle.setAttribute('aria-expanded', String(state.cardOpen));
        this.card.append(toggle);
        if (state.cardOpen) {
            this.card.append(el('dl', {}, ...state.card.flatMap((line) => [
                el('dt', {}, line.label),
                el('dd', {}, line.text, ...line.links.flatMap((link, at) => [
                    at > 0 ? ', ' : line.text === '' ? '' : ' ',
                    button(link.title, 'link', () => this.send('related', { verb: link.id })),
                ])),
            ])));
        }
    }

    private drawTools(state: VerbState): void {
        const text = (key: string): string => this.channel.text(key);
        const voices = ['verb.voice.woman', 'verb.voice.man'].map((key, voice) => {
            const made = button(text(key), 'tool', () => this.send('voice', { voice }));
            made.setAttribute('aria-pressed', String(voice === state.voice));
            return made;
        });
        const marks = button(text('verb.marks'), 'tool', () => this.send('marks', { on: !state.marks }));
        marks.setAttribute('aria-pressed', String(state.marks));
        const neighbour = (name: string, key: string, places: number): HTMLElement | false =>
            name !== '' && button(`${text(key)}: ${name}`, 'tool neighbour',
                () => this.send('neighbour', { places }),
                places < 0 && icon('back'), el('span', { lang: 'fr' }, name), places > 0 && icon('disclosure'));
        this.tools.replaceChildren(...[
            neighbour(state.previous, 'card.previous', -1), ...voices, marks,
            state.spoken !== '' && button(text('action.stop'), 'tool stop', () => this.send('stop'),
                icon('Stop'), el('span', { lang: 'fr' }, state.spoken)),
            neighbour(state.next, 'card.next', 1)].filter((part) => part !== false));
    }

    private drawRows(table: TableState, state: VerbState): void {
        this.rows.replaceChildren();
        let row = 0;
        let section = -1;
        for (const run of table.layout ?? []) {
            if (run[0] !== 'cells') {
                ++section;
                const next = table.layout?.[table.layout.indexOf(run) + 1];
                this.rows.append(this.heading(run[1], section, next?.[0] === 'cells', state));
                ++row;
                continue;
            }
            for (let left = run[1]; left > 0; --left, ++row) {
                const cell = table.rows?.[row];
                if (cell) {
                    section = cell.section;
                    this.rows.append(this.cell(cell, row, table.table, state));
                }
            }
        }
    }

    private heading(title: string, section: number, used: boolean, state: VerbState): HTMLElement {
        const tense = section - 1;
        if (title === '') {
            return el('div', { class: 'tense-heading bare' });
        }
        return el('h2', { class: 'tense-heading', 'data-tense': tense },
            button(title, 'tense-title', () => void this.showNote(tense)),
            !used && state.hasForms && el('span', { class: 'unused' }, this.channel.text('tense.unused')),
            used && button(`${this.channel.text('action.play.tense')}: ${title}`, 'play-tense',
                () => this.send('playTense', { tense }), icon('PlayTense')));
    }

    private cell(cell: Cell, row: number, table: number, state: VerbState): HTMLElement {
        if (cell.reuse !== 'CellConjugation') {
            return el('p', { class: 'translation' }, cell.text);
        }
        const ring = cell.control && 'ring' in cell.control ? cell.control : null;
        const made = el('div', { class: 'form-row', 'data-row': row },
            button(cell.label || `${cell.text} ${cell.detail}`, 'form-line',
                () => void this.showForm(cell.section - 1, cell.row),
                leadingText(cell.text, cell.lineStyle), ' ', formText(cell.detail, cell.lineStyle)),
            ring && playControl(ring, `${this.channel.text('action.play')}: ${cell.text} ${cell.detail}`,
                () => this.channel.send('accessory', { table, row })));
        made.classList.toggle('opened', row === state.opened);
        return made;
    }

    private drawSquares(squares: Squares): void {
        const play = this.channel.text('action.play');
        this.squares.replaceChildren(
            el('p', { class: 'squares-title' }, squares.title),
            ...squares.items.map((item, at) => el('section', { class: 'square', 'data-tense': at },
                el('h2', {}, button(item.title, 'tense-title', () => void this.showNote(at))),
                ...item.rows.map((line, index) => el('div', { class: 'form-row' },
                    button(line.label || `${line.leading} ${line.trailing}`, 'form-line',
                        () => void this.showForm(at, index),
                        leadingText(line.leading, line.lineStyle), ' ', formText(line.trailing, line.lineStyle)),
                    line.control && playControl(line.control, `${play}: ${line.leading} ${line.trailing}`,
                        () => this.send('audio', { item: at, line: index })))))));
    }

    private async showNote(tense: number): Promise<void> {
        const note = await this.channel.ask<TenseNote | undefined>('note', { screen: this.number, tense });
        if (note) {
            showSheet(note.tense.title, [
                note.tense.other !== '' && el('p', { class: 'second' }, note.tense.other),
                el('p', {}, note.use),
                el('p', { lang: 'fr', class: 'example' }, note.example),
                el('p', { class: 'second' }, note.translation)], this.channel);
        }
    }

    private async showForm(tense: number, line: number): Promise<void> {
        const sheet = await this.channel.ask<FormSheet | undefined>('sheet', { screen: this.number, tense, line });
        if (!sheet) {
            return;
        }
        const text = (key: string): string => this.channel.text(key);
        const copy = (key: string, form: string): HTMLElement =>
            button(text(key), 'sheet-button', () => void navigator.clipboard.writeText(form), icon('share_copy'),
                el('span', {}, text(key)));
        const close = showSheet(sheet.row, [
            sheet.ipa !== '' && el('p', { class: 'ipa' }, `[${sheet.ipa}]`),
            el('p', {}, sheet.tense.title, sheet.tense.other !== '' && ` (${sheet.tense.other})`),
            el('p', { class: 'second' }, sheet.person),
            button(text('sheet.slowly'), 'sheet-button',
                () => this.send('slowly', { tense, line, squares: this.element.classList.contains('wide') }),
                icon('Play'), el('span', {}, text('sheet.slowly'))),
            copy('sheet.copy.row', sheet.row),
            sheet.form !== sheet.row && copy('sheet.copy.form', sheet.form),
            sheet.others.length > 0 && el('h3', {}, text('sheet.others')),
            ...sheet.others.map((other) => button(`${other.row}, ${other.tense}`, 'sheet-button', () => {
                close();
                this.showOther(other.segment, other.section, other.line);
            }, el('span', { lang: 'fr' }, other.row), el('span', { class: 'second' }, other.tense)))],
        this.channel, 'fr');
    }

    private showOther(segment: number, section: number, line: number): void {
        void this.channel.ask('mood', { screen: this.number, segment }).then(() => {
            const row = this.table?.rows?.findIndex((cell) => cell?.section === section && cell.row === line) ?? -1;
            this.rows.querySelector(`[data-row="${row}"]`)?.scrollIntoView({ block: 'center' });
        });
    }
}
