// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Elements made in one expression. Texts become text nodes, never mark-up.

import icons from 'lumora-icons';

type Child = Node | string | null | false | undefined;
type Props = Record<string, string | number | boolean | null | undefined | ((event: never) => void)>;

export function el<Tag extends keyof HTMLElementTagNameMap>(
    tag: Tag, props: Props = {}, ...children: Child[]): HTMLElementTagNameMap[Tag] {
    const element = document.createElement(tag);
    for (const [name, value] of Object.entries(props)) {
        if (typeof value === 'function') {
            element.addEventListener(name, value as EventListener);
        } else if (value === true) {
            element.setAttribute(name, '');
        } else if (value !== false && value !== null && value !== undefined) {
            element.setAttribute(name, String(value));
        }
    }
    element.append(...children.filter((child): child is Node | string => Boolean(child)));
    return element;
}

const drawn = new Map<string, Element>();

function drawIcon(source: string): Element {
    // Of two in a page with the same names inside, a hidden one would be taken.
    if (source.includes('url(#')) {
        return el('img', { src: `data:image/svg+xml,${encodeURIComponent(source)}`, alt: '' });
    }
    return document.importNode(new DOMParser().parseFromString(source, 'image/svg+xml').documentElement, true);
}

// A picture in the colour of the text around it.
export function icon(name: string): Element | null {
    let picture = drawn.get(name);
    if (!picture) {
        const source = icons[name];
        if (source === undefined) {
            return null;
        }
        picture = drawIcon(source);
        picture.setAttribute('aria-hidden', 'true');
        picture.classList.add('icon');
        drawn.set(name, picture);
    }
    return picture.cloneNode(true) as Element;
}

export function button(label: string, kind: string, press: (event: MouseEvent) => void, ...children: Child[]):
    HTMLButtonElement {
    return el('button', { type: 'button', class: kind, 'aria-label': children.length > 0 && label !== '' ? label : null, click: press },
        ...(children.length > 0 ? children : [label]));
}

// One of several; the arrows go from one to the next.
export function fillSegments(
    place: HTMLElement, titles: string[], chosen: number, choose: (segment: number) => void): HTMLElement {
    const hadFocus = place.contains(document.activeElement);
    const made = titles.map((title, segment) => {
        const each = button(title, 'segment', () => choose(segment));
        each.setAttribute('aria-pressed', String(segment === chosen));
        return each;
    });
    place.classList.add('segments');
    place.replaceChildren(...made);
    place.onkeydown = (event) => {
        const step = { ArrowLeft: -1, ArrowRight: 1 }[event.key];
        const next = made[made.findIndex((each) => each === document.activeElement) + (step ?? 0)];
        if (step !== undefined && next) {
            event.preventDefault();
            next.focus();
            next.click();
        }
    };
    if (hadFocus) {
        made[chosen]?.focus();
    }
    return place;
}

export const isShown = (element: Element): boolean => element.getClientRects().length > 0;

export const reducedMotion = (): boolean => matchMedia('(prefers-reduced-motion: reduce)').matches;
