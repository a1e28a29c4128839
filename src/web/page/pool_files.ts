// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The browser's private files as a file system for the program: a pool of files
// that are open from the start, for only an open one can be read and written at
// once. The first page of each names it, so that a rename is one write.

import type { EmscriptenFs, FsNode, FsStream } from './module';

const headerBytes = 4096;
const spareFiles = 8;
const patience = 6000;
const noSuchFile = 44, noSpace = 51, notEmpty = 55, invalid = 28;
const folderMode = 0o40000, kindMask = 0o170000;

interface Slot { handle: FileSystemSyncAccessHandle; name: string; turn: number; size: number }
interface PoolNode extends FsNode { contents?: Map<string, PoolNode>; slot?: Slot }

function checksum(text: string): number {
    let sum = 2166136261;
    for (let at = 0; at < text.length; ++at) {
        sum = Math.imul(sum ^ text.charCodeAt(at), 16777619) >>> 0;
    }
    return sum;
}

export const isTaken = (error: unknown): boolean =>
    error instanceof DOMException && error.name === 'NoModificationAllowedError';

// The handle is exclusive: an ended worker, or another tab's, may still have it.
async function openHandle(folder: FileSystemDirectoryHandle, name: string): Promise<FileSystemSyncAccessHandle> {
    const file = await folder.getFileHandle(name, { create: true });
    const end = Date.now() + patience;
    for (;;) {
        try {
            return await file.createSyncAccessHandle();
        } catch (error) {
            if (!isTaken(error) || Date.now() > end) {
                throw error;
            }
            await new Promise((resolve) => setTimeout(resolve, 50));
        }
    }
}

export class FilePool {
    private slots: Slot[] = [];
    private turn = 0;
    private growing = false;

    private constructor(private readonly folder: FileSystemDirectoryHandle) {}

    // Throws where the browser has no such files.
    static async open(name: string): Promise<FilePool> {
        const root = await navigator.storage.getDirectory();
        const pool = new FilePool(await root.getDirectoryHandle(name, { create: true }));
        let count = 0;
        for await (const key of pool.folder.keys()) {
            count = Math.max(count, Number(key) + 1);
        }
        await pool.add(Math.max(count, 2 * spareFiles));
        return pool;
    }

    private async add(count: number): Promise<void> {
        const first = this.slots.length;
        const names = Array.from({ length: count }, (_, at) => String(first + at));
        const handles = await Promise.all(names.map((name) => openHandle(this.folder, name)));
        for (const handle of handles) {
            this.slots.push(this.read(handle));
        }
        this.dropOlder();
    }

    private read(handle: FileSystemSyncAccessHandle): Slot {
        const slot: Slot = { handle, name: '', turn: 0, size: Math.max(0, handle.getSize() - headerBytes) };
        const bytes = new Uint8Array(headerBytes);
        handle.read(bytes, { at: 0 });
        const [sum, turn, name] = new TextDecoder().decode(bytes).replace(/\0+$/, '').split('\n');
        if (name && turn && Number(sum) === checksum(`${turn}\n${name}`)) {
            slot.name = name;
            slot.turn = Number(turn);
            this.turn = Math.max(this.turn, slot.turn);
        }
        return slot;
    }

    // A rename that was cut short leaves two files of a name: the newer counts.
    private dropOlder(): void {
        for (const slot of this.slots) {
            if (this.slots.some((other) => other.name === slot.name && other.turn > slot.turn)) {
                this.release(slot);
            }
        }
    }

    named(): Slot[] {
        return this.slots.filter((slot) => slot.name !== '');
    }

    take(name: string): Slot | undefined {
        const slot = this.slots.find((each) => each.name === '');
        if (slot) {
            slot.handle.truncate(headerBytes);
            slot.size = 0;
            this.name(slot, name);
        }
        return slot;
    }

    name(slot: Slot, name: string): void {
        const text = `${++this.turn}\n${name}`;
        const bytes = new Uint8Array(headerBytes);
        new TextEncoder().encodeInto(name === '' ? '' : `${checksum(text)}\n${text}`, bytes);
        slot.handle.write(bytes, { at: 0 });
        slot.name = name;
        slot.turn = this.turn;
    }

    release(slot: Slot): void {
        if (slot.name !== '') {
            this.name(slot, '');
            slot.handle.truncate(headerBytes);
            slot.size = 0;
        }
    }

    // Opening files takes time: some are always ready.
    async keepSpare(): Promise<void> {
        if (!this.growing && this.slots.length - this.named().length < spareFiles / 2) {
            this.growing = true;
            await this.add(spareFiles).finally(() => { this.growing = false; });
        }
    }

    close(): void {
        for (const slot of this.slots) {
            slot.handle.flush();
            slot.handle.close();
        }
        this.slots = [];
    }
}

// What emscripten's file system asks of a mounted one.
export function mountPool(fs: EmscriptenFs, pool: FilePool, mountpoint: string): void {
    const fail = (code: number): never => { throw new fs.ErrnoError(code); };
    const pathOf = (parent: PoolNode, name: string): string =>
        parent.parent === parent ? `/${name}` : `${pathOf(parent.parent, parent.name)}/${name}`;

    const streamOps = {
        open: () => undefined,
        close: () => undefined,
        read(stream: FsStream, buffer: Int8Array, offset: number, length: number, position: number): number {
            const slot = (stream.node as PoolNode).slot;
            return slot?.handle.read(buffer.subarray(offset, offset + length), { at: headerBytes + position })
                ?? fail(noSuchFile);
        },
        write(stream: FsStream, buffer: Int8Array, offset: number, length: number, position: number): number {
            const node = stream.node as PoolNode;
            const slot = node.slot ?? fail(noSuchFile);
            const bytes = buffer.subarray(offset, offset + length);
            // The browser may be out of space.
            if (slot.handle.write(bytes, { at: headerBytes + position }) !== length) {
                fail(noSpace);
            }
            slot.size = Math.max(slot.size, position + length);
            node.timestamp = Date.now();
            return length;
        },
        llseek(stream: FsStream, offset: number, whence: number): number {
            const size = (stream.node as PoolNode).slot?.size ?? 0;
            const position = offset + (whence === 1 ? stream.position : whence === 2 ? size : 0);
            return position < 0 ? fail(invalid) : position;
        },
        fsync(stream: FsStream): number {
            (stream.node as PoolNode).slot?.handle.flush();
            return 0;
        },
    };

    function addNode(parent: PoolNode | null, name: string, mode: number): PoolNode {
        const node = fs.createNode(parent, name, mode, 0) as PoolNode;
        node.timestamp = Date.now();
        node.node_ops = nodeOps;
        node.stream_ops = streamOps;
        if ((mode & kindMask) === folderMode) {
            node.contents = new Map();
        }
        parent?.contents?.set(name, node);
        return node;
    }

    const nodeOps = {
        getattr(node: PoolNode): Record<string, unknown> {
            const time = new Date(node.timestamp);
            const size = node.slot?.size ?? 4096;
            return {
                dev: 1, ino: node.id, mode: node.mode, nlink: 1, uid: 0, gid: 0, rdev: 0, size,
                atime: time, mtime: time, ctime: time, blksize: 4096, blocks: Math.ceil(size / 4096),
            };
        },
        setattr(node: PoolNode, attributes: { mode?: number; timestamp?: number; size?: number }): void {
            node.mode = attributes.mode ?? node.mode;
            node.timestamp = attributes.timestamp ?? node.timestamp;
            if (attributes.size !== undefined && node.slot) {
                node.slot.handle.truncate(headerBytes + attributes.size);
                node.slot.size = attributes.size;
            }
        },
        // Nodes are made with their files: one that is not known is not there.
        lookup: (): never => fail(noSuchFile),
        mknod(parent: PoolNode, name: string, mode: number): PoolNode {
            const isFolder = (mode & kindMask) === folderMode;
            const slot = isFolder ? undefined : pool.take(pathOf(parent, name)) ?? fail(noSpace);
            const node = addNode(parent, name, mode);
            node.slot = slot;
            return node;
        },
        rename(node: PoolNode, folder: PoolNode, name: string): void {
            const replaced = folder.contents?.get(name);
            if (replaced?.contents?.size) {
                fail(notEmpty);
            }
            if (node.slot) {
                pool.name(node.slot, pathOf(folder, name));
            }
            if (replaced?.slot) {
                pool.release(replaced.slot);
            }
            if (replaced) {
                fs.hashRemoveNode(replaced);
            }
            (node.parent as PoolNode).contents?.delete(node.name);
            node.name = name;
            node.parent = folder;
            folder.contents?.set(name, node);
        },
        unlink(parent: PoolNode, name: string): void {
            const node = parent.contents?.get(name);
            if (node?.slot) {
                pool.release(node.slot);
                node.slot = undefined;
            }
            parent.contents?.delete(name);
        },
        rmdir(parent: PoolNode, name: string): void {
            if (parent.contents?.get(name)?.contents?.size) {
                fail(notEmpty);
            }
            parent.contents?.delete(name);
        },
        readdir: (node: PoolNode): string[] => ['.', '..', ...(node.contents?.keys() ?? [])],
    };

    const type = {
        mount(): PoolNode {
            const root = addNode(null, '/', folderMode | 0o777);
            for (const slot of pool.named()) {
                const parts = slot.name.split('/').slice(1);
                let folder = root;
                for (const part of parts.slice(0, -1)) {
                    folder = folder.contents?.get(part) ?? addNode(folder, part, folderMode | 0o777);
                }
                addNode(folder, parts.at(-1) ?? '', 0o100666).slot = slot;
            }
            return root;
        },
    };
    fs.mkdir(mountpoint);
    fs.mount(type, {}, mountpoint);
}
