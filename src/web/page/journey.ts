// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The browser's history beside the program's stacks: a step deeper is an entry, and
// going back takes a step back. A verb has its address: #verb/aller.

import type { Channel } from './channel';
import { openVerb, type State } from './messages';

export class Journey {
    private depth = 0;
    private leaving = 0;

    constructor(private readonly channel: Channel) {
        history.replaceState({ depth: 0 }, '');
        window.addEventListener('popstate', (event) => this.moved(event));
        window.addEventListener('hashchange', () => this.follow());
    }

    // The address that the page was opened with, or that the person typed.
    follow(hash = location.hash): void {
        const verb = /^#verb\/(.+)$/.exec(hash)?.[1];
        if (verb !== undefined && verb !== this.shown) {
            this.channel.send('link', { link: `lumora://verb/${verb}` });
        }
    }

    private shown = '';

    update(state: State): void {
        const details = state.secondary.filter((screen) => screen.kind !== 'verb' || screen.verb !== undefined);
        const depth = state.primary.length - 1 + Math.max(0, details.length - 1) + state.modals.length
            + (state.preview ? 1 : 0);
        const open = openVerb(state);
        this.shown = open ? encodeURIComponent(open.bar.title) : '';
        const hash = this.shown === '' ? '' : `#verb/${this.shown}`;
        const address = hash || location.pathname + location.search;
        if (depth > this.depth) {
            for (let level = this.depth + 1; level <= depth; ++level) {
                history.pushState({ depth: level }, '', address);
            }
        } else if (depth < this.depth && this.leaving === 0) {
            this.leaving = this.depth - depth;
            history.go(-this.leaving);
        } else if (depth !== this.depth || hash !== location.hash) {
            history.replaceState({ depth }, '', address);
        }
        this.depth = depth;
        if (this.leaving > 0) {
            this.address = address;
        }
    }

    private address = '';

    private moved(event: PopStateEvent): void {
        const depth = (event.state as { depth?: number } | null)?.depth;
        if (depth === undefined) {
            return;
        }
        if (this.leaving > 0) {
            // Our own step back, after the program's.
            this.leaving = 0;
            history.replaceState({ depth: this.depth }, '', this.address);
            return;
        }
        const steps = this.depth - depth;
        this.depth = Math.min(this.depth, depth);
        for (let step = 0; step < steps; ++step) {
            this.channel.send('back');
        }
    }
}
