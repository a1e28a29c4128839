// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The state as elements: a view for each screen on show, kept as long as its screen
// is on a stack, so that it comes back as it was left.

import type { Channel } from './channel';
import { Dialogs } from './dialogs';
import { button, el } from './dom';
import { HomeView } from './home_view';
import { openVerb, type ScreenState, type State } from './messages';
import { ScreenView } from './screen_view';
import { OptionsView, TableScreenView } from './table_view';
import { VerbView } from './verb_view';

class PlainView extends ScreenView {
    protected override update(): void { /* its bar is all it has */ }
}

function makeView(channel: Channel, state: ScreenState): ScreenView {
    switch (state.kind) {
    case 'home': return new HomeView(channel, state.screen);
    case 'verb': return new VerbView(channel, state.screen);
    case 'options': return new OptionsView(channel, state.screen);
    case 'plain': return new PlainView(channel, state.screen);
    default: return new TableScreenView(channel, state.screen);
    }
}

// In one pane there is no list beside to hide.
function withoutSidebar(state: ScreenState): ScreenState {
    return state.bar.left?.image === 'sidebar' ? { ...state, bar: { ...state.bar, left: null } } : state;
}

export class Views {
    private readonly views = new Map<number, ScreenView>();
    private readonly primary = el('main', { class: 'pane primary' });
    private readonly secondary = el('section', { class: 'pane secondary' });
    private readonly modals = el('div', { class: 'modals' });
    private readonly panes = el('div', { class: 'panes' }, this.primary, this.secondary);
    private readonly dialogs: Dialogs;
    private layers: HTMLElement[] = [];
    private toldModals = '';
    private opened = false;
    state: State | undefined;

    constructor(private readonly channel: Channel, app: HTMLElement) {
        app.replaceChildren(this.panes, this.modals);
        this.dialogs = new Dialogs(channel);
    }

    home(): HomeView | undefined {
        return [...this.views.values()].find((view) => view instanceof HomeView);
    }

    verb(): VerbView | undefined {
        const view = this.views.get((this.state && openVerb(this.state)?.screen) ?? -1);
        return view instanceof VerbView ? view : undefined;
    }

    show(state: State): void {
        this.state = state;
        const used = new Set<number>();
        document.documentElement.toggleAttribute('data-two-panes', !state.collapsed);
        this.primary.hidden = state.primaryHidden && !state.collapsed;
        this.secondary.hidden = state.collapsed;
        const beside = state.secondary.at(-1);
        this.secondary.setAttribute('aria-label',
            beside?.bar.title || (beside?.kind === 'verb' && beside.select) || 'Lumora');
        this.drawModals(state);
        this.drawStack(this.primary, state.primary, used);
        this.drawStack(this.secondary, state.secondary, used);
        state.modals.forEach((modal, at) => {
            const place = this.layers[at]?.firstElementChild;
            if (place instanceof HTMLElement) {
                this.drawStack(place, modal.screens, used);
            }
        });
        // Once its bar is drawn: before, only the shade behind it could have the focus.
        if (this.opened) {
            this.opened = false;
            this.layers.at(-1)?.querySelector<HTMLElement>('.bar button, button')?.focus();
        }
        for (const [number, view] of this.views) {
            if (!used.has(number)) {
                view.element.remove();
                this.views.delete(number);
            }
        }
        this.dialogs.update(state.question, state.preview);
        const verb = openVerb(state);
        document.title = verb ? `${verb.bar.title} – Lumora` : 'Lumora';
    }

    private drawStack(place: HTMLElement, stack: ScreenState[], used: Set<number>): void {
        stack.forEach((state, at) => {
            const top = at === stack.length - 1;
            used.add(state.screen);
            let view = this.views.get(state.screen);
            if (!view) {
                view = makeView(this.channel, state);
                this.views.set(state.screen, view);
                view.element.classList.toggle('arriving', at > 0);
            }
            if (view.element.parentElement !== place) {
                place.append(view.element);
            }
            view.element.hidden = !top;
            view.show(this.state?.collapsed ? withoutSidebar(state) : state, at > 0);
        });
    }

    private drawModals(state: State): void {
        const told = JSON.stringify(state.modals.map((modal) => [modal.menu, modal.screens[0]?.screen]));
        if (told !== this.toldModals) {
            this.toldModals = told;
            this.layers = state.modals.map((modal) => {
                const key = String(modal.screens[0]?.screen);
                const layer = this.layers.find((each) => each.dataset['screen'] === key) ?? this.layer(modal.menu);
                layer.dataset['screen'] = key;
                return layer;
            });
            this.modals.replaceChildren(...this.layers);
            this.opened = true;
        }
        this.panes.inert = state.modals.length > 0;
        this.layers.forEach((layer, at) => {
            layer.inert = at < this.layers.length - 1;
            layer.firstElementChild?.setAttribute('aria-label', state.modals[at]?.screens.at(-1)?.bar.title || 'Lumora');
        });
    }

    private layer(menu: boolean): HTMLElement {
        const place = el('div', { class: menu ? 'modal menu' : 'modal', role: 'dialog', 'aria-modal': 'true' });
        const shade = button(this.channel.text('common.done'), 'shade', () => this.channel.send('back'));
        shade.textContent = '';
        shade.setAttribute('aria-label', this.channel.text('common.done'));
        return el('div', { class: 'layer' }, place, shade);
    }
}
