// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Short tables, drawn whole: the options, the menu, the other applications.

import { button, el, fillSegments, icon } from './dom';
import type { Cell, OptionsState, TableScreenState, TableState } from './messages';
import { ScreenView } from './screen_view';

abstract class GroupedView<Kind extends OptionsState | TableScreenState> extends ScreenView<Kind> {
    protected readonly rows = el('div', { class: 'grouped' });

    protected drawRows(table: TableState): void {
        if (!table.layout) {
            return;
        }
        // The same rows again: the keyboard stays where it was.
        const focused = document.activeElement?.closest('[data-row]')?.getAttribute('data-row');
        const inside = this.rows.contains(document.activeElement);
        this.rows.replaceChildren();
        let row = 0;
        let group: HTMLElement | null = null;
        for (const run of table.layout) {
            if (run[0] !== 'cells') {
                this.rows.append(el(run[0] === 'header' ? 'h2' : 'p', { class: `group-${run[0]}` }, run[1]));
                group = null;
                ++row;
                continue;
            }
            group = el('div', { class: 'group' });
            this.rows.append(group);
            for (let left = run[1]; left > 0; --left, ++row) {
                const cell = table.rows?.[row];
                if (cell) {
                    group.append(this.cell(cell, row, table.table));
                }
            }
        }
        if (inside && focused) {
            this.rows.querySelector<HTMLElement>(`[data-row="${focused}"] [aria-pressed=true], button[data-row="${focused}"]`)?.focus();
        }
    }

    private cell(cell: Cell, row: number, table: number): HTMLElement {
        const send = (event: string, parts: Record<string, unknown> = {}): void =>
            this.channel.send(event, { table, row, ...parts });
        const label = el('span', { class: 'label' }, `${cell.text} `);
        const control = cell.control;
        if (control && 'on' in control) {
            const made = el('button', {
                type: 'button', class: 'option', role: 'switch', 'aria-checked': String(control.on), 'data-row': row,
                'aria-label': cell.label || cell.text, click: () => send('switch', { on: !control.on }),
            }, label, cell.detail !== '' && el('span', { class: 'detail' }, cell.detail), el('span', { class: 'switch' }));
            return made;
        }
        if (control && 'titles' in control) {
            return el('div', { class: 'option', 'data-row': row, role: 'group', 'aria-label': cell.label || cell.text },
                label, fillSegments(el('div'), control.titles, control.selected,
                    (segment) => send('segment', { segment })));
        }
        const picture = cell.image === '' ? null : icon(cell.image);
        const parts = [picture, label, cell.detail !== '' && el('span', { class: 'detail' }, cell.detail),
            cell.disclosure && icon('disclosure')];
        if (!cell.selectable) {
            return el('div', { class: 'option', 'data-row': row }, ...parts);
        }
        const made = button(cell.label === cell.text ? '' : cell.label, 'option',
            () => send('tap'), ...parts);
        made.dataset['row'] = String(row);
        return made;
    }
}

export class TableScreenView extends GroupedView<TableScreenState> {
    constructor(...parts: ConstructorParameters<typeof ScreenView>) {
        super(...parts);
        this.content.append(this.rows);
    }

    protected override update(state: TableScreenState): void {
        this.rows.classList.toggle('apps', state.kind === 'apps');
        this.drawRows(state.table);
    }
}

export class OptionsView extends GroupedView<OptionsState> {
    // What is kept where, which only the browser knows.
    static keeping = (): string => '';
    static version = '';
    private readonly head = el('div', { class: 'about' });
    private readonly kept = el('p', { class: 'group-footer' });
    private opened = false;

    constructor(...parts: ConstructorParameters<typeof ScreenView>) {
        super(...parts);
        const scroller = el('div', { class: 'options-page' }, this.head, this.rows, this.kept);
        this.content.append(scroller);
    }

    protected override update(state: OptionsState): void {
        if (this.head.childElementCount === 0) {
            const { icon: picture, title, copyright, website, support } = state.header;
            const version = this.channel.textWith('settings.version', OptionsView.version);
            const names = el('div', {}, el('h2', {}, title), el('p', {}, version), el('p', {}, copyright));
            this.head.append(...[icon(picture), names,
                button(website, 'link', () => this.channel.send('website', { screen: this.number })),
                button(support, 'link', () => this.channel.send('support', { screen: this.number }))]
                .filter((part) => part !== null));
        }
        this.drawRows(state.table);
        this.kept.textContent = OptionsView.keeping();
        if (!this.opened && state.firstRow >= 0) {
            const row = this.rows.querySelector<HTMLElement>(`[data-row="${state.firstRow}"]`);
            row?.scrollIntoView({ block: 'start' });
            row?.focus();
        }
        this.opened = true;
    }
}
