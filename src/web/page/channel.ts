// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Events to the worker, and its answers as promises.

import type { Answer, Event, FromWorker, State, Texts, Todo, ToWorker } from './messages';

export class Channel {
    texts: Texts = {};
    private last = 0;
    private readonly waiting = new Map<number, (reply: unknown) => void>();
    private readonly listeners: ((message: FromWorker) => void)[] = [];

    constructor(
        private readonly worker: Worker, private readonly show: (state: State) => void,
        private readonly carryOut: (todo: Todo) => void) {
        worker.onmessage = (message: MessageEvent<FromWorker>) => this.receive(message.data);
    }

    // Of the language that the program speaks; the key where there is none.
    text(key: string): string {
        return this.texts[key] ?? key;
    }

    // The same with its places filled.
    textWith(key: string, value: string): string {
        return this.text(key).replace(/%(1|@|s)/, value);
    }

    order(message: ToWorker): void {
        this.worker.postMessage(message);
    }

    listen(listener: (message: FromWorker) => void): void {
        this.listeners.push(listener);
    }

    send(event: string, parts: Record<string, unknown> = {}): void {
        void this.ask(event, parts);
    }

    ask<Reply>(event: string, parts: Record<string, unknown> = {}): Promise<Reply> {
        const number = ++this.last;
        const whole: Event = { event, ...parts };
        this.order({ kind: 'event', number, event: whole });
        return new Promise((resolve) => this.waiting.set(number, resolve as (reply: unknown) => void));
    }

    take(text: string, number = 0): void {
        const answer = JSON.parse(text) as Answer;
        if (answer.state) {
            this.show(answer.state);
        }
        for (const todo of answer.todo ?? []) {
            this.carryOut(todo);
        }
        this.waiting.get(number)?.(answer.reply);
        this.waiting.delete(number);
    }

    private receive(message: FromWorker): void {
        if (message.kind === 'answer') {
            this.take(message.answer, message.number);
        }
        for (const listener of this.listeners) {
            listener(message);
        }
    }
}
