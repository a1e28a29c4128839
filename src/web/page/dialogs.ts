// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What lies over the screens for a while: questions, sheets, previews, notices.

import type { Channel } from './channel';
import { button, el, icon } from './dom';
import type { Preview, Question } from './messages';
import { formText } from './verb_view';

type Part = Node | false | null;

// Keeps the keyboard inside and gives it back, which the element itself does.
function openDialog(kind: string, label: string, parts: Part[], cancel: () => void): HTMLDialogElement {
    const before = document.activeElement;
    const dialog = el('dialog', { class: kind, 'aria-label': label },
        ...parts.filter((part): part is Node => Boolean(part)));
    dialog.addEventListener('cancel', (event) => {
        event.preventDefault();
        cancel();
    });
    dialog.addEventListener('click', (event) => {
        if (event.target === dialog) {
            cancel();
        }
    });
    dialog.addEventListener('close', () => {
        dialog.remove();
        if (before instanceof HTMLElement && before.isConnected) {
            before.focus({ preventScroll: true });
        }
    });
    document.body.append(dialog);
    dialog.showModal();
    return dialog;
}

// Returns what closes it.
export function showSheet(
    title: string, parts: Part[], channel: Channel, language?: string, closed?: () => void): () => void {
    const close = (): void => dialog.close();
    const dialog: HTMLDialogElement = openDialog('sheet', title, [
        el('div', { class: 'sheet-heading' }, el('h2', { lang: language }, title),
            button(channel.text('common.done'), 'link', close)),
        ...parts], close);
    dialog.addEventListener('close', () => closed?.());
    return close;
}

export function showNotice(text: string): void {
    const notice = el('div', { class: 'notice', role: 'status' }, text);
    document.body.append(notice);
    setTimeout(() => notice.remove(), 4000);
}

export class Dialogs {
    private question: HTMLDialogElement | null = null;
    private preview: HTMLDialogElement | null = null;
    private told = '';
    private toldPreview = '';

    constructor(private readonly channel: Channel) {}

    update(question: Question | null, preview: Preview | null): void {
        const told = JSON.stringify(question);
        if (told !== this.told) {
            this.told = told;
            this.question?.close();
            this.question = question && this.ask(question);
        }
        const shown = preview && [preview.title, preview.actions];
        if (JSON.stringify(shown) !== this.toldPreview) {
            this.toldPreview = JSON.stringify(shown);
            this.preview?.close();
            this.preview = preview && this.show(preview);
        }
    }

    private ask(question: Question): HTMLDialogElement {
        const cancel = (): void => {
            if (question.cancellable) {
                this.channel.send('cancel');
            }
        };
        const answers = question.answers.map((answer, index) => {
            const made = button(answer.title,
                `answer${answer.destructive ? ' destructive' : ''}${answer.cancel ? ' cancel' : ''}`,
                () => this.channel.send('answer', { index }));
            if (answer.chosen) {
                made.append(icon('chosen') ?? '');
                made.setAttribute('aria-current', 'true');
            }
            return made;
        });
        return openDialog(question.sheet ? 'action-sheet' : 'alert', question.title || question.message, [
            question.title !== '' && el('h2', {}, question.title),
            question.message !== '' && el('p', {}, question.message),
            el('div', { class: 'answers' }, ...answers)], cancel);
    }

    private show(preview: Preview): HTMLDialogElement {
        const close = (): void => this.channel.send('closePreview');
        const rows = (preview.table.rows ?? []).filter((cell) => cell?.reuse === 'CellConjugation').slice(0, 6);
        return openDialog('preview', preview.title, [
            button(preview.title, 'preview-verb', () => this.channel.send('openPreview'),
                el('h2', { lang: 'fr' }, preview.title), el('p', {}, preview.translation),
                el('p', { class: 'second' }, preview.summary),
                ...rows.map((cell) => cell && el('div', { class: 'form-line' },
                    el('span', { class: 'leading', lang: 'fr' }, cell.text), formText(cell.detail, cell.lineStyle)))),
            el('div', { class: 'answers' },
                button(this.channel.text('action.open'), 'answer', () => this.channel.send('openPreview')),
                ...preview.actions.map((offer, action) => button(offer.title,
                    `answer ${offer.style}`, () => this.channel.send('previewAction', { action }))))], close);
    }
}
