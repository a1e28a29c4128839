// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The rings of the play controls: each a circle that fills while its row is spoken.

import { button, icon, reducedMotion } from './dom';
import type { Ring } from './messages';

const svg = 'http://www.w3.org/2000/svg';
const length = 2 * Math.PI * 14;
const rings = new Map<number, Set<SVGCircleElement>>();

function setValue(circle: SVGCircleElement, value: number): void {
    circle.style.strokeDashoffset = String(length * (1 - value));
    circle.closest('button')?.toggleAttribute('data-running', value > 0 && value < 1);
}

export function playControl(ring: Ring, label: string, press: () => void): HTMLButtonElement {
    const circle = document.createElementNS(svg, 'circle');
    for (const [name, value] of Object.entries({ cx: 16, cy: 16, r: 14, class: 'ring' })) {
        circle.setAttribute(name, String(value));
    }
    circle.style.strokeDasharray = String(length);
    const picture = document.createElementNS(svg, 'svg');
    picture.setAttribute('viewBox', '0 0 32 32');
    picture.setAttribute('aria-hidden', 'true');
    picture.append(circle);
    const control = button(label, 'play', (event) => {
        event.stopPropagation();
        press();
    }, picture, icon('Play'));
    setValue(circle, ring.value);
    const known = rings.get(ring.ring) ?? new Set();
    for (const each of known) {
        if (!each.isConnected) {
            known.delete(each);
        }
    }
    rings.set(ring.ring, known.add(circle));
    return control;
}

export function moveRing(ring: number, from: number, to: number, seconds: number): void {
    for (const circle of rings.get(ring) ?? []) {
        circle.style.transition = seconds > 0 && !reducedMotion() ? `stroke-dashoffset ${seconds}s linear` : 'none';
        if (seconds > 0) {
            circle.getBoundingClientRect();
        } else {
            setValue(circle, from);
        }
        setValue(circle, to);
    }
}
