// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What the program cannot do in its worker: voice, links, mail, files, sharing.

import type { Channel } from './channel';
import { showNotice, showSheet } from './dialogs';
import { button, el, icon } from './dom';
import type { Todo } from './messages';
import { moveRing } from './rings';
import { Speech } from './speech';

type Share = Extract<Todo, { do: 'share' }>;
type Mail = Extract<Todo, { do: 'mail' }>;

export class Machine {
    private readonly speech: Speech;

    constructor(private readonly channel: Channel) {
        this.speech = new Speech(channel);
    }

    carryOut(todo: Todo): void {
        switch (todo.do) {
        case 'ring': { moveRing(todo.ring, todo.from, todo.to, todo.seconds); return; }
        case 'speak': { this.speech.say(todo); return; }
        case 'silence': { this.speech.silence(); return; }
        case 'open': window.open(todo.url, '_blank', 'noopener,noreferrer'); return;
        case 'mail': { this.mail(todo); return; }
        case 'share': { this.share(todo); return; }
        case 'pick': { this.pick(todo.extension); return; }
        case 'save': { this.save(todo.name, todo.content, 'application/json'); return; }
        default: // Timers run in the worker.
        }
    }

    private mail(mail: Mail): void {
        const body = mail.html ? plainText(mail.body ?? '') : mail.body ?? '';
        const query = Object.entries({ subject: mail.subject ?? '', body })
            .map(([name, text]) => `${name}=${encodeURIComponent(text.replace(/\n/g, '\r\n'))}`).join('&');
        el('a', { href: `mailto:${(mail.to ?? []).map(encodeURIComponent).join(',')}?${query}` }).click();
    }

    private save(name: string, content: string, type: string): void {
        const url = URL.createObjectURL(new Blob([content], { type }));
        el('a', { href: url, download: name }).click();
        setTimeout(() => URL.revokeObjectURL(url), 60000);
    }

    private pick(extension: string): void {
        const input = el('input', { type: 'file', accept: `.${extension}`, id: 'picked-file', hidden: true });
        document.getElementById('picked-file')?.remove();
        document.body.append(input);
        input.addEventListener('change', () => {
            void input.files?.[0]?.text().then((content) => this.channel.send('picked', { content }));
            input.remove();
        });
        input.click();
    }

    private share(items: Share): void {
        const text = (key: string): string => this.channel.text(key);
        const offer = (key: string, picture: string, chosen: () => void): HTMLElement =>
            button(text(key), 'sheet-button', () => {
                close();
                chosen();
            }, icon(picture), el('span', {}, text(key)));
        const close = showSheet(items.title, [
            'share' in navigator && offer('web.share', 'share_mail', () => {
                // The person may close the dialog without choosing.
                navigator.share({ title: items.title, text: items.text }).catch(() => undefined);
            }),
            offer('share.copy', 'share_copy', () => {
                void navigator.clipboard.writeText(items.text).then(() => showNotice(text('notice.copied')));
            }),
            offer('share.save.text', 'share_text', () => this.save(`${items.title}.txt`, items.text, 'text/plain')),
            offer('share.save.html', 'share_html', () => this.save(`${items.title}.html`, items.html, 'text/html')),
            offer('web.print', 'share_print', () => printPage(items.html)),
            offer('share.mail', 'share_mail', () => this.mail({ do: 'mail', subject: items.title, body: items.text })),
        ], this.channel, 'fr');
    }
}

function plainText(html: string): string {
    const page = new DOMParser().parseFromString(html, 'text/html');
    page.querySelectorAll('br').forEach((line) => line.replaceWith('\n'));
    page.querySelectorAll('hr').forEach((line) => line.replaceWith('----------\n'));
    return page.body.textContent.trim();
}

// In a page of its own inside this one. Its styles are handed over as objects, for
// the policy lets none in as texts.
export function printPage(html: string): void {
    const styles = /<style[^>]*>([\s\S]*?)<\/style>/g;
    const css = [...html.matchAll(styles)].map((style) => style[1] ?? '').join('\n');
    const parsed = new DOMParser().parseFromString(html.replace(styles, ''), 'text/html');
    parsed.querySelectorAll('script').forEach((script) => script.remove());
    document.getElementById('printed')?.remove();
    const frame = el('iframe', { id: 'printed', 'aria-hidden': true, tabindex: -1 });
    document.body.append(frame);
    const page = frame.contentDocument;
    const view = frame.contentWindow as (Window & typeof globalThis) | null;
    if (page && view) {
        const sheet = new view.CSSStyleSheet();
        sheet.replaceSync(css);
        page.adoptedStyleSheets = [sheet];
        page.title = parsed.title;
        page.body.append(...[...parsed.body.childNodes].map((node) => page.importNode(node, true)));
        view.focus();
        view.print();
    }
}
