// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A long list of verbs: of its rows only those in sight are elements.

import type { Channel } from './channel';
import { el, icon } from './dom';
import { SwipeRow, type RowPlace, type TouchedRow } from './swipe';
import type { Cell, TableState } from './messages';

const block = 100;
const ahead = 12;
// In milliseconds, until the rows out of sight are made.
const breath = 60;
let lists = 0;

interface Line { kind: 'header' | 'cell' | 'footer'; title: string; top: number; height: number }

export class TableList {
    readonly element = el('div', { class: 'table-list' });
    private readonly scroller = el('div', { class: 'scroller', role: 'listbox', tabindex: 0 });
    private readonly space = el('div', { class: 'space', role: 'presentation' });
    private readonly sticky = el('div', { class: 'section-header sticky', 'aria-hidden': true });
    private readonly rail = el('div', { class: 'index-rail', 'aria-hidden': true });
    private readonly empty = el('p', { class: 'empty' });
    private readonly swipe: SwipeRow;
    private readonly prefix = `list${++lists}-`;
    private lines: Line[] = [];
    private heights = { header: 0, cell: 1, footer: 0 };
    private cells = new Map<number, Cell>();
    private readonly shown = new Map<number, HTMLElement>();
    private readonly asked = new Set<number>();
    private state: TableState | undefined;
    private current = -1;
    private waiting = false;
    private later = 0;
    // As last seen: to ask for them makes the browser lay the page out at once.
    private top = 0;
    private height = 0;
    private index: [string, number][] = [];

    constructor(private readonly channel: Channel, label: string) {
        this.scroller.setAttribute('aria-label', label);
        this.scroller.append(this.space);
        this.element.append(this.scroller, this.sticky, this.rail, this.empty);
        this.scroller.addEventListener('scroll', () => this.drawSoon(), { passive: true });
        this.scroller.addEventListener('keydown', (event) => this.key(event));
        new ResizeObserver(() => this.look()).observe(this.scroller);
        this.swipe = new SwipeRow(channel, this.scroller, (target) => this.rowOf(target));
        this.rail.addEventListener('pointerdown', (event) => {
            this.rail.setPointerCapture(event.pointerId);
            this.jump(event);
        });
        this.rail.addEventListener('pointermove', (event) => {
            if (event.buttons > 0) {
                this.jump(event);
            }
        });
    }

    update(state: TableState): void {
        const old = this.state;
        this.state = state;
        if (old && old.table !== state.table) {
            this.scrollToTop();
        }
        if (state.layout) {
            this.layOut(state);
        } else if (old?.open !== state.open) {
            this.forget();
        }
        this.empty.textContent = state.empty?.text ?? '';
        this.empty.hidden = state.empty === null;
        this.scroller.hidden = state.empty !== null;
        this.rail.hidden = state.empty !== null || this.index.length === 0;
        if (state.layout) {
            this.drawInSight();
        } else {
            this.draw();
        }
    }

    scrollToTop(): void {
        if (this.top !== 0) {
            this.top = this.scroller.scrollTop = 0;
        }
    }

    focus(): void {
        this.scroller.focus();
    }

    private layOut(state: TableState): void {
        const style = getComputedStyle(document.documentElement);
        const size = (name: string): number =>
            Math.round(parseFloat(style.getPropertyValue(name)) * parseFloat(style.fontSize));
        const heights = { header: size('--header-height'), cell: size('--row-height'), footer: size('--row-height') };
        this.heights = heights;
        this.lines = [];
        let top = 0;
        const add = (kind: Line['kind'], title: string): void => {
            this.lines.push({ kind, title, top, height: heights[kind] });
            top += heights[kind];
        };
        for (const run of state.layout ?? []) {
            if (run[0] === 'cells') {
                for (let left = run[1]; left > 0; --left) {
                    add('cell', '');
                }
            } else {
                add(run[0], run[1]);
            }
        }
        this.space.style.height = `${top}px`;
        this.top = Math.max(0, Math.min(this.top, top - this.height));
        this.cells = new Map();
        this.asked.clear();
        state.rows?.forEach((cell, at) => {
            if (cell) {
                this.cells.set(at, cell);
            }
        });
        this.index = state.index ?? [];
        this.rail.replaceChildren(...this.index.map(([title]) => el('span', {}, title)));
        this.forget();
    }

    private forget(): void {
        this.swipe.close();
        this.space.replaceChildren();
        this.shown.clear();
    }

    private lineAt(top: number): number {
        let low = 0;
        let high = this.lines.length - 1;
        while (low < high) {
            const middle = (low + high + 1) >> 1;
            if ((this.lines[middle]?.top ?? 0) <= top) {
                low = middle;
            } else {
                high = middle - 1;
            }
        }
        return low;
    }

    private drawSoon(): void {
        if (!this.waiting) {
            this.waiting = true;
            requestAnimationFrame(() => {
                this.waiting = false;
                this.look();
            });
        }
    }

    private look(): void {
        const before = this.top;
        this.top = this.scroller.scrollTop;
        this.height = this.scroller.clientHeight;
        this.draw();
        // Where the finger is going, so that the rows are there before it.
        if (this.top !== before && this.height > 0) {
            const row = this.lineAt(this.top);
            this.fetch(Math.max(0, row - 2 * block), Math.min(this.lines.length - 1, row + 3 * block));
        }
    }

    // A person who types waits for these; the others come behind.
    private drawInSight(): void {
        if (this.height === 0) {
            this.height = this.scroller.clientHeight;
            this.top = this.scroller.scrollTop;
        }
        this.draw(0);
        clearTimeout(this.later);
        this.later = window.setTimeout(() => this.draw(), breath);
    }

    private draw(around = ahead): void {
        const { top, height } = this;
        if (height === 0 || this.lines.length === 0) {
            this.sticky.hidden = true;
            this.forget();
            return;
        }
        const first = Math.max(0, this.lineAt(top) - around);
        const last = Math.min(this.lines.length - 1, this.lineAt(top + height) + around);
        for (const [row, element] of this.shown) {
            if (row < first || row > last) {
                element.remove();
                this.shown.delete(row);
            }
        }
        const fresh = document.createDocumentFragment();
        for (let row = first; row <= last; ++row) {
            if (!this.shown.has(row)) {
                const element = this.make(row);
                this.shown.set(row, element);
                fresh.append(element);
            }
        }
        this.space.append(fresh);
        this.fetch(first, last);
        this.drawSticky(top);
    }

    private drawSticky(top: number): void {
        let row = this.lineAt(top);
        while (row >= 0 && this.lines[row]?.kind !== 'header') {
            --row;
        }
        this.sticky.hidden = row < 0 || top <= 0;
        this.sticky.textContent = this.lines[row]?.title ?? '';
    }

    private fetch(first: number, last: number): void {
        const state = this.state;
        for (let from = first - first % block; state && from <= last; from += block) {
            let missing = false;
            for (let row = Math.max(from, first); row < from + block && row <= last; ++row) {
                missing ||= this.lines[row]?.kind === 'cell' && !this.cells.has(row);
            }
            if (!missing || this.asked.has(from)) {
                continue;
            }
            this.asked.add(from);
            void this.channel.ask<(Cell | null)[] | undefined>('rows', { table: state.table, from, count: block })
                .then((cells) => this.fill(state, from, cells ?? []));
        }
    }

    private fill(state: TableState, from: number, cells: (Cell | null)[]): void {
        if (state.table !== this.state?.table || state.revision !== this.state.revision) {
            return;
        }
        cells.forEach((cell, at) => {
            if (cell && !this.cells.has(from + at)) {
                this.cells.set(from + at, cell);
                this.shown.get(from + at)?.remove();
                this.shown.delete(from + at);
            }
        });
        this.draw();
    }

    private make(row: number): HTMLElement {
        const line = this.lines[row] ?? { kind: 'cell', title: '', top: 0, height: 0 };
        const place = `top:${line.top}px;height:${line.height}px`;
        let element: HTMLElement;
        if (line.kind !== 'cell') {
            element = el('div', { class: `section-${line.kind}`, role: 'presentation' }, line.title);
        } else {
            element = this.makeCell(row);
        }
        element.style.cssText = place;
        return element;
    }

    private makeCell(row: number): HTMLElement {
        const cell = this.cells.get(row);
        const element = el('div', {
            class: 'verb-row', role: 'option', id: this.prefix + String(row), 'data-row': row,
            'aria-selected': row === this.state?.open ? 'true' : 'false',
        });
        if (!cell) {
            element.append('…');
            return element;
        }
        const translation = cell.detail === cell.text ? '' : cell.detail;
        const star = cell.image === '' ? null : icon(cell.image);
        element.classList.toggle('current', row === this.current);
        element.append(
            el('div', { class: 'texts' },
                el('div', { class: 'first', lang: 'fr' }, `${cell.text} `,
                    cell.note !== '' && el('span', { class: 'note' }, ` (${cell.note})`)),
                translation !== '' && el('div', { class: 'second' }, translation)));
        if (star) {
            star.classList.add('star');
            star.removeAttribute('aria-hidden');
            star.setAttribute('role', 'img');
            star.setAttribute('aria-label', this.channel.text('button.favourite'));
            element.append(star);
        }
        return element;
    }

    private rowOf(target: EventTarget | null): TouchedRow | null {
        const element = target instanceof Element ? target.closest<HTMLElement>('.verb-row') : null;
        const row = Number(element?.dataset['row']);
        const place = this.place(row);
        return element && place ? { place, element, editable: this.cells.get(row)?.editable ?? false } : null;
    }

    // Nothing where the page has not got the row yet.
    private place(row: number): RowPlace | null {
        const cell = this.cells.get(row);
        return this.state && cell ? { table: this.state.table, row, text: cell.text } : null;
    }

    private jump(event: PointerEvent): void {
        const index = this.index;
        const box = this.rail.getBoundingClientRect();
        const at = Math.floor((event.clientY - box.top) / box.height * this.rail.childElementCount);
        const row = index[Math.max(0, Math.min(at, index.length - 1))]?.[1];
        if (row !== undefined) {
            this.scroller.scrollTop = this.lines[row]?.top ?? 0;
        }
        event.preventDefault();
    }

    private key(event: KeyboardEvent): void {
        if (event.target !== this.scroller) {
            // A button behind a row has keys of its own.
            if (event.key === 'Escape') {
                this.swipe.close();
                this.scroller.focus();
                event.stopPropagation();
            }
            return;
        }
        const page = Math.max(1, Math.floor(this.scroller.clientHeight / this.heights.cell) - 1);
        const steps: Record<string, number> = {
            ArrowDown: 1, ArrowUp: -1, PageDown: page, PageUp: -page, Home: -Infinity, End: Infinity,
        };
        const step = steps[event.key];
        if (step !== undefined && !event.ctrlKey && !event.altKey) {
            this.move(step);
        } else if (event.key === 'Enter' || event.key === ' ') {
            this.event('tap');
        } else if (event.key === 'ContextMenu' || event.key === 'F10' && event.shiftKey) {
            this.event('hold');
        } else if (event.key === 'Delete' || event.key === 'Backspace') {
            this.swipe.open(this.rowOf(this.shown.get(this.current) ?? null));
        } else {
            return;
        }
        event.preventDefault();
    }

    private event(kind: string): void {
        const place = this.place(this.current);
        if (place) {
            this.channel.send(kind, { ...place });
        }
    }

    private move(step: number): void {
        const last = this.lines.length - 1;
        let row = Math.max(0, Math.min(last, this.current < 0 ? 0 : this.current + step));
        const way = step < 0 && row > 0 ? -1 : 1;
        while (row >= 0 && row <= last && this.lines[row]?.kind !== 'cell') {
            row += way;
        }
        const line = this.lines[row];
        if (!line) {
            return;
        }
        this.current = row;
        const view = this.scroller;
        if (line.top < view.scrollTop + this.heights.header) {
            view.scrollTop = line.top - this.heights.header;
        } else if (line.top + line.height > view.scrollTop + view.clientHeight) {
            view.scrollTop = line.top + line.height - view.clientHeight;
        }
        this.look();
        for (const [at, element] of this.shown) {
            element.classList.toggle('current', at === row);
        }
        view.setAttribute('aria-activedescendant', this.prefix + String(row));
    }
}
