// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What every screen has: a bar with its title and buttons above its content.

import type { Channel } from './channel';
import { button, el, icon } from './dom';
import type { Bar, Button, ScreenState } from './messages';

export abstract class ScreenView<Kind extends ScreenState = ScreenState> {
    readonly element = el('section', { class: 'screen' });
    protected readonly content = el('div', { class: 'content' });
    private readonly bar = el('header', { class: 'bar' });
    private toldBar = '';

    constructor(protected readonly channel: Channel, readonly number: number) {
        this.element.append(this.bar, this.content);
    }

    show(state: Kind, canGoBack: boolean): void {
        const told = JSON.stringify([state.bar, canGoBack]);
        if (told !== this.toldBar) {
            this.toldBar = told;
            this.drawBar(state.bar, canGoBack);
        }
        this.update(state);
    }

    protected abstract update(state: Kind): void;

    private drawBar(bar: Bar, canGoBack: boolean): void {
        const focused = document.activeElement instanceof HTMLElement && this.bar.contains(document.activeElement)
            ? document.activeElement.dataset['button'] : undefined;
        const left = el('div', { class: 'bar-side' },
            canGoBack && this.make({
                id: 'back', title: this.channel.text('navigation.back'), image: 'back', enabled: true,
            }, () => this.channel.send('back')),
            bar.left && this.make(bar.left));
        const right = el('div', { class: 'bar-side right' }, ...bar.right.map((each) => this.make(each)));
        this.bar.replaceChildren(left, el(bar.title === '' ? 'span' : 'h1', {}, bar.title), right);
        if (focused) {
            this.bar.querySelector<HTMLElement>(`[data-button="${focused}"]`)?.focus();
        }
    }

    private make(each: Button, press = () => this.channel.send('press', { screen: this.number, button: each.id })):
        HTMLButtonElement {
        const picture = each.image === '' ? null : icon(each.image);
        const key = `button.${each.id}`;
        const label = each.title || (this.channel.texts[key] ?? each.id);
        const made = picture ? button(label, 'bar-button', press, picture) : button(label, 'bar-button text', press);
        made.disabled = !each.enabled;
        made.dataset['button'] = each.id;
        return made;
    }
}
