// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The keys of the window, as far as a browser leaves them to a page.

import type { Channel } from './channel';
import { showSheet } from './dialogs';
import { el, isShown } from './dom';
import type { Views } from './views';

// In a tab the browser keeps some keys for itself.
const installed = (): boolean => matchMedia('(display-mode: standalone)').matches;
const partsInSight = '.panes .scroller, .panes .verb-page, .panes .moods';

export class Keys {
    private closeHelp: (() => void) | undefined;

    constructor(private readonly channel: Channel, private readonly views: Views) {
        window.addEventListener('keydown', (event) => {
            const act = this.meant(event);
            if (act) {
                event.preventDefault();
                act();
            }
        });
    }

    private meant(event: KeyboardEvent): (() => void) | undefined {
        const name = (event.ctrlKey || event.metaKey ? 'ctrl+' : '') + (event.altKey ? 'alt+' : '')
            + (event.shiftKey ? 'shift+' : '') + event.key.toLowerCase();
        if (name === 'f1') {
            return () => this.toggleHelp();
        }
        if (document.querySelector('dialog[open]')) {
            return undefined;
        }
        if (name === 'escape') {
            return () => this.stopOrGoBack();
        }
        const own = (this.views.state?.modals.length ?? 0) > 0 ? undefined : this.ofThePanes(name);
        // In a text it is a letter.
        return name === '/' && event.target !== document.body ? undefined : own;
    }

    private ofThePanes(name: string): (() => void) | undefined {
        const { channel, views } = this;
        const tab = /^ctrl\+([1-3])$/.exec(name)?.[1];
        if (tab !== undefined) {
            return () => {
                channel.send('home');
                channel.send('tab', { tag: Number(tab) - 1 });
            };
        }
        const find = (): void => void channel.ask('home').then(() => views.home()?.focusField());
        const keys: Record<string, (() => void) | undefined> = {
            'ctrl+f': find,
            '/': find,
            'ctrl+,': () => channel.send('showOptions'),
            'f10': () => channel.send('press', { screen: views.home()?.number, button: 'menu' }),
            'f6': () => this.changePart(1),
            'shift+f6': () => this.changePart(-1),
            'ctrl+pageup': () => views.verb()?.goOn(-1),
            'ctrl+pagedown': () => views.verb()?.goOn(1),
            'ctrl+ ': () => views.verb()?.playTopTense(),
        };
        return keys[name];
    }

    private stopOrGoBack(): void {
        if (!this.views.verb()?.stop()) {
            this.channel.send('back');
        }
    }

    private changePart(step: number): void {
        const parts = [...document.querySelectorAll<HTMLElement>(partsInSight)].filter(isShown);
        const now = parts.findIndex((part) => part.contains(document.activeElement));
        const next = parts[(Math.max(now, step < 0 ? 0 : -1) + step + parts.length) % parts.length];
        (next?.querySelector<HTMLElement>('[aria-pressed=true]') ?? next)?.focus();
    }

    private toggleHelp(): void {
        if (this.closeHelp) {
            this.closeHelp();
            return;
        }
        const text = (key: string): string => this.channel.text(key);
        const ctrl = `${text('keys.ctrl')}+`;
        const space = text('keys.space');
        const escape = text('keys.escape');
        const rows: [string, string][] = [
            [`${ctrl}F, /`, text('keys.find')],
            ...installed() ? [[`${ctrl}1, 2, 3`,
                ['tabs.list', 'tabs.favourites', 'tabs.history'].map(text).join(', ')]] satisfies [string, string][] : [],
            [text('keys.enter'), text('keys.open')],
            [space, text('action.play')],
            [`${ctrl}${space}`, text('action.play.tense')],
            [escape, text('keys.stop')],
            ...installed() ? [[`${ctrl}${text('keys.page_up')}`, text('card.previous')],
                [`${ctrl}${text('keys.page_down')}`, text('card.next')]] satisfies [string, string][] : [],
            ['← →', text('keys.value')],
            [`${text('keys.shift')}+F10`, text('keys.row')],
            ['F6', text('keys.part')],
            ['F10', text('button.menu')],
            [`${ctrl},`, text('settings')],
            [`${escape}, Alt+←`, text('navigation.back')],
            ['F1', text('keys.title')],
        ];
        this.closeHelp = showSheet(text('keys.title'), [el('dl', { class: 'keys' },
            ...rows.flatMap(([keys, meaning]) => [el('dt', {}, keys), el('dd', {}, meaning)]))],
        this.channel, undefined, () => { this.closeHelp = undefined; });
    }
}
