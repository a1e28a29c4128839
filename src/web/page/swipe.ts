// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What fingers and the mouse do to the rows of a list: a tap, a long hold, a swipe
// to the left that shows what a row offers.

import type { Channel } from './channel';
import { button, el, icon } from './dom';
import type { SwipeOffer } from './messages';

const holdTime = 500;
const slack = 10;
const swipeStart = 30;

// The text says which verb was meant, should the row hold another by then.
export interface RowPlace { table: number; row: number; text: string }
export interface TouchedRow { place: RowPlace; element: HTMLElement; editable: boolean }

export class SwipeRow {
    private start: { x: number; y: number; row: TouchedRow } | null = null;
    private timer = 0;
    private handled = false;
    private actions: HTMLElement | null = null;

    constructor(
        private readonly channel: Channel, private readonly area: HTMLElement,
        private readonly rowOf: (target: EventTarget | null) => TouchedRow | null) {
        area.addEventListener('pointerdown', (event) => this.down(event));
        area.addEventListener('pointermove', (event) => this.move(event));
        for (const end of ['pointerup', 'pointercancel', 'pointerleave']) {
            area.addEventListener(end, () => this.rest());
        }
        area.addEventListener('click', (event) => this.click(event));
        area.addEventListener('contextmenu', (event) => {
            const row = this.rowOf(event.target);
            if (row) {
                event.preventDefault();
                this.hold(row);
            }
        });
    }

    close(): void {
        this.actions?.remove();
        this.actions = null;
    }

    open(row: TouchedRow | null): void {
        this.close();
        if (!row?.editable) {
            return;
        }
        void this.channel.ask<SwipeOffer[] | undefined>('actions', { ...row.place }).then((offers) => {
            this.close();
            this.actions = el('div', { class: 'swipe-actions', role: 'presentation' },
                ...(offers ?? []).map((offer, action) => {
                    const made = button(offer.title, `swipe ${offer.style}`, (event) => {
                        event.stopPropagation();
                        this.close();
                        this.channel.send('action', { ...row.place, action });
                    }, icon(offer.image), el('span', {}, offer.title));
                    if (offer.color) {
                        const [red, green, blue] = offer.color;
                        made.style.background = `rgb(${red} ${green} ${blue})`;
                        made.classList.toggle('light', 0.299 * red + 0.587 * green + 0.114 * blue > 0.48 * 255);
                    }
                    return made;
                }));
            this.actions.style.cssText = row.element.style.cssText;
            row.element.parentElement?.append(this.actions);
            this.actions.querySelector('button')?.focus();
        });
    }

    private down(event: PointerEvent): void {
        this.handled = false;
        const row = this.rowOf(event.target);
        if (!row || event.button !== 0) {
            return;
        }
        this.start = { x: event.clientX, y: event.clientY, row };
        this.timer = window.setTimeout(() => this.hold(row), holdTime);
    }

    private move(event: PointerEvent): void {
        if (!this.start) {
            return;
        }
        const x = event.clientX - this.start.x;
        const y = event.clientY - this.start.y;
        if (Math.abs(x) > slack || Math.abs(y) > slack) {
            clearTimeout(this.timer);
        }
        if (x < -swipeStart && Math.abs(y) < swipeStart && event.pointerType !== 'mouse') {
            this.handled = true;
            this.open(this.start.row);
            this.start = null;
        }
    }

    private rest(): void {
        clearTimeout(this.timer);
        this.start = null;
    }

    private hold(row: TouchedRow): void {
        this.rest();
        if (!this.handled) {
            this.handled = true;
            this.channel.send('hold', { ...row.place });
        }
    }

    private click(event: MouseEvent): void {
        if (this.actions && !this.actions.contains(event.target as Node)) {
            this.close();
            return;
        }
        const row = this.rowOf(event.target);
        if (row && !this.handled) {
            this.channel.send('tap', { ...row.place });
        }
        this.handled = false;
        this.area.focus({ preventScroll: true });
    }
}
