// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Script contexts for the export, each with a global object of its own. A text
// becomes code only here, in the worker: the page's policy allows it nowhere.

type Context = Generator<unknown, never, string>;

// Made of a text, since a module's code is strict: in strict code one script's
// variables would be gone in the next.
const Generators = Object.getPrototypeOf(function* () { /* only its constructor */ }) as {
    constructor: new (...code: string[]) => (scope: object) => Context;
};
const makeContext = new Generators.constructor(
    'lumoraScope', 'with (lumoraScope) { let lumoraValue; for (;;) lumoraValue = eval(yield lumoraValue); }');

export class Scripts {
    private contexts = new Map<number, Context>();
    private last = 0;

    make(): number {
        this.contexts.set(++this.last, this.start());
        return this.last;
    }

    drop(context: number): void {
        this.contexts.delete(context);
    }

    evaluate(context: number, script: string): string {
        try {
            const value = this.contexts.get(context)?.next(script).value;
            return JSON.stringify({ text: String(value), thrown: false });
        } catch (thrown) {
            // A context ends with what it throws.
            this.contexts.set(context, this.start());
            return JSON.stringify({ text: String(thrown), thrown: true });
        }
    }

    private start(): Context {
        const scope: Record<string, unknown> = { exports: undefined, module: undefined, define: undefined };
        Object.assign(scope, { globalThis: scope, self: scope, window: scope });
        const context = makeContext.call(scope, scope);
        context.next('');
        return context;
    }
}
