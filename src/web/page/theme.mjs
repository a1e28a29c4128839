// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The window's theme as custom properties: one table for both. Its colours stand in
// lines of Theme.qml, as "dark ? <dark> : <light>" or as one for both.

const line = /^ {4}readonly property (color|int) (\w+): (.+)$/;
const hex = /^"(#[0-9a-f]{6,8})"$/i;

// "#aarrggbb" as the window has it.
function css(colour) {
    return colour.length === 9 ? `#${colour.slice(3)}${colour.slice(1, 3)}` : colour;
}

function darker(colour, factor) {
    const parts = [1, 3, 5].map((at) => Math.round(parseInt(colour.slice(at, at + 2), 16) / factor));
    return `#${parts.map((part) => part.toString(16).padStart(2, '0')).join('')}`;
}

export function themeCss(qml) {
    const values = { light: {}, dark: {} };
    const lengths = {};
    const read = (text, mode) => {
        const both = /^dark \? (.+) : (.+)$/.exec(text);
        if (both) {
            return read(both[mode === 'dark' ? 1 : 2], mode);
        }
        const fallback = /^appearance\?\.\w+ \?\? (.+)$/.exec(text);
        if (fallback) {
            return read(fallback[1], mode);
        }
        const shade = /^Qt\.darker\((\w+), ([\d.]+)\)$/.exec(text);
        if (shade) {
            return darker(read(shade[1], mode), Number(shade[2]));
        }
        return hex.exec(text)?.[1] ?? values[mode][text];
    };
    for (const text of qml.split('\n')) {
        const [, kind, name, value] = line.exec(text) ?? [];
        if (kind === 'color') {
            for (const mode of ['light', 'dark']) {
                values[mode][name] = read(value, mode);
                if (!values[mode][name]) {
                    throw new Error(`Theme.qml: no colour is understood in "${text.trim()}"`);
                }
            }
        } else if (kind === 'int' && /^\d+$/.test(value)) {
            lengths[name] = `${value}px`;
        }
    }
    const kebab = (name) => name.replace(/[A-Z]/g, (letter) => `-${letter.toLowerCase()}`);
    const block = (table) => Object.entries(table).map(([name, value]) => `--${kebab(name)}:${value};`).join('');
    const colours = (mode) => block(Object.fromEntries(
        Object.entries(values[mode]).map(([name, value]) => [name, css(value)])));
    return `:root{color-scheme:light dark;${block(lengths)}${colours('light')}}`
        + `@media (prefers-color-scheme:dark){:root{${colours('dark')}}}`;
}
