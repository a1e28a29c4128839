// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Where a browser has no private files: settings and the person's rows as texts in
// its database. The program takes the rows as those of an interrupted replacement.

const store = 'texts';

function settled<Value>(request: IDBRequest<Value>): Promise<Value> {
    return new Promise((resolve, reject) => {
        request.onsuccess = () => resolve(request.result);
        request.onerror = () => reject(request.error ?? new Error('the database failed'));
    });
}

export class KeptRows {
    private readonly told = new Map<string, string>();

    private constructor(private readonly database: IDBDatabase) {}

    static async open(): Promise<KeptRows> {
        const request = indexedDB.open('lumora', 1);
        request.onupgradeneeded = () => request.result.createObjectStore(store);
        return new KeptRows(await settled(request));
    }

    async read(name: string): Promise<string | undefined> {
        const value: unknown = await settled(this.database.transaction(store).objectStore(store).get(name));
        return typeof value === 'string' ? value : undefined;
    }

    // Resolves when it is kept; at once where nothing has changed.
    async write(name: string, text: string): Promise<void> {
        if (this.told.get(name) === text) {
            return;
        }
        const transaction = this.database.transaction(store, 'readwrite', { durability: 'strict' });
        const done = new Promise<void>((resolve, reject) => {
            transaction.oncomplete = () => resolve();
            transaction.onabort = () => reject(transaction.error ?? new Error('the database failed'));
        });
        transaction.objectStore(store).put(text, name);
        await done;
        this.told.set(name, text);
    }
}
