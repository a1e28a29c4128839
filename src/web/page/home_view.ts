// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The first screen: search field, list with its tabs, results and readings.

import { button, el, icon } from './dom';
import type { HomeState, Reading } from './messages';
import { ScreenView } from './screen_view';
import { TableList } from './table_list';

export class HomeView extends ScreenView<HomeState> {
    private readonly field = el('input', {
        type: 'search', autocapitalize: 'none', autocomplete: 'off', spellcheck: 'false', enterkeyhint: 'search',
        class: 'search-field',
    });
    private readonly clear = button(this.channel.text('search.clear'), 'clear', () => this.type(''), icon('clear'));
    private readonly chips = el('div', { class: 'tools chips', role: 'group', 'aria-label': this.channel.text('list.narrow') });
    private readonly readings = el('div', { class: 'readings' });
    private readonly lists = new Map<number, TableList>();
    private readonly results = new TableList(this.channel, this.channel.text('settings.search'));
    private readonly place = el('div', { class: 'lists' });
    private readonly tabs = el('nav', { class: 'tabs' });
    private told = '';
    private toldTabs = '';
    private toldChips = '';
    private shownText = '';
    private sent = '';
    private pending = false;
    private searching = false;

    constructor(...parts: ConstructorParameters<typeof ScreenView>) {
        super(...parts);
        const search = el('div', { class: 'search', role: 'search' }, icon('search'), this.field, this.clear);
        this.content.append(el('div', { class: 'search-bar' }, search), this.chips, this.readings, this.place, this.tabs);
        this.field.addEventListener('input', () => this.type(this.field.value));
        this.field.addEventListener('focus', () => this.channel.send('searchFocus', { on: true }));
        this.field.addEventListener('blur', () => this.channel.send('searchFocus', { on: false }));
        this.field.addEventListener('keydown', (event) => this.key(event));
    }

    focusField(): void {
        this.field.focus();
        this.field.select();
    }

    protected override update(state: HomeState): void {
        if (this.field.placeholder !== state.search.placeholder) {
            this.field.placeholder = state.search.placeholder;
            this.field.setAttribute('aria-label', state.search.placeholder);
        }
        // What the person typed meanwhile is newer than what comes back.
        if (state.search.text !== this.field.value && (document.activeElement !== this.field || state.search.text === '' && this.sent === '')) {
            this.field.value = state.search.text;
        }
        this.clear.hidden = this.field.value === '';
        if (state.search.focus && document.activeElement !== this.field && document.activeElement === document.body) {
            this.field.focus();
        }
        this.drawTabs(state);
        this.drawChips(state);
        this.drawReadings(state);
        this.drawList(state);
    }

    private type(text: string): void {
        this.field.value = text;
        this.sent = text;
        this.pending = true;
        this.clear.hidden = text === '';
        // Until the answer to the last key, what stands below is of an older text.
        this.content.setAttribute('aria-busy', 'true');
        if (!this.searching) {
            void this.search();
        }
        if (text === '') {
            this.field.focus();
        }
    }

    // Of the keys that come while one is answered only the last is searched for.
    private async search(): Promise<void> {
        this.searching = true;
        while (this.pending) {
            this.pending = false;
            await this.channel.ask('search', { text: this.sent });
        }
        this.searching = false;
        this.content.removeAttribute('aria-busy');
    }

    private key(event: KeyboardEvent): void {
        if (event.key === 'Enter') {
            // What is opened is of the text that stands there.
            if (this.pending) {
                this.pending = false;
                this.channel.send('search', { text: this.sent });
            }
            this.channel.send('openFirst');
        } else if (event.key === 'Escape' && this.field.value !== '') {
            this.type('');
            event.stopPropagation();
        } else if (event.key === 'ArrowDown') {
            (this.results.element.isConnected ? this.results : this.current())?.focus();
        } else {
            return;
        }
        event.preventDefault();
    }

    private current(): TableList | undefined {
        return [...this.lists.values()].find((list) => list.element.isConnected);
    }

    private drawTabs(state: HomeState): void {
        const told = JSON.stringify([state.tabs, state.tab]);
        if (told === this.toldTabs) {
            return;
        }
        this.toldTabs = told;
        this.tabs.hidden = state.tabs.length < 2;
        this.tabs.replaceChildren(...state.tabs.map((tab) => {
            const made = button(tab.title, 'tab', () => this.channel.send('tab', { tag: tab.tag }),
                icon(tab.image), el('span', {}, tab.title));
            made.toggleAttribute('data-chosen', tab.tag === state.tab);
            made.setAttribute('aria-pressed', String(tab.tag === state.tab));
            return made;
        }));
    }

    private drawChips(state: HomeState): void {
        this.chips.hidden = !state.chips;
        const told = JSON.stringify(state.chips);
        if (!state.chips || told === this.toldChips) {
            return;
        }
        this.toldChips = told;
        const focused = [...this.chips.children].findIndex((chip) => chip === document.activeElement);
        const made = state.chips.map((chip, at) => {
            const each = button(this.channel.text(chip.title), 'tool', () => {
                this.current()?.scrollToTop();
                this.channel.send('chip', { chip: at, on: !chip.on });
            });
            each.setAttribute('aria-pressed', String(chip.on));
            return each;
        });
        this.chips.replaceChildren(...made);
        made[focused]?.focus();
    }

    private drawReadings(state: HomeState): void {
        const told = JSON.stringify([state.readings, state.nothingFound, state.formsOffered, state.search.text]);
        if (told === this.told) {
            return;
        }
        this.told = told;
        const cards = state.results ? state.readings ?? [] : [];
        const nothing = state.results?.empty;
        this.readings.replaceChildren();
        if (state.nothingFound && cards.length > 0) {
            this.readings.append(el('p', { class: 'readings-title' }, this.channel.text('search.did_you_mean')));
        }
        this.readings.append(...cards.map((card, at) => this.card(card, at, state.search.text)));
        if (nothing && cards.length === 0) {
            this.readings.append(el('p', { class: 'empty' }, nothing.text || this.channel.text('search.empty')));
        }
        if (state.results && state.formsOffered) {
            this.readings.append(button(this.channel.text('search.in_forms'), 'link',
                () => this.channel.send('formsOption')));
        }
        this.readings.classList.toggle('all', state.nothingFound ?? false);
    }

    private card(card: Reading, at: number, text: string): HTMLElement {
        return button('', 'reading',
            () => this.channel.send('openReading', { card: at, text }),
            el('span', { class: 'first', lang: 'fr' }, `${card.headword} `),
            el('span', { class: 'second' }, `${card.detail} `),
            card.kind !== '' && el('span', { class: 'kind' }, card.kind), icon('disclosure'));
    }

    private drawList(state: HomeState): void {
        const results = state.results;
        if (results) {
            // Before it is filled, so that it has a height.
            this.put(this.results);
            this.results.element.hidden = state.nothingFound ?? false;
            this.results.update(results.empty ? { ...results, empty: null } : results);
            if (this.shownText !== state.search.text) {
                this.results.scrollToTop();
            }
        }
        this.shownText = state.search.text;
        if (!state.list) {
            return;
        }
        let list = this.lists.get(state.tab);
        if (!list) {
            const title = state.tabs.find((tab) => tab.tag === state.tab)?.title ?? '';
            list = new TableList(this.channel, title || state.bar.title);
            this.lists.set(state.tab, list);
            this.place.append(list.element);
        }
        for (const each of this.lists.values()) {
            each.element.hidden = Boolean(results) || each !== list;
        }
        if (!results) {
            this.results.element.hidden = true;
        }
        list.update(state.list);
    }

    private put(list: TableList): void {
        if (!list.element.isConnected || list.element.parentElement !== this.place) {
            this.place.append(list.element);
        }
    }
}
