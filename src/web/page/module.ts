// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What the page's worker uses of the module that emscripten makes.

export interface FsNode {
    id: number; name: string; mode: number; parent: FsNode; timestamp: number;
    node_ops: unknown; stream_ops: unknown;
}
export interface FsStream { node: FsNode; position: number }
export interface EmscriptenFs {
    ErrnoError: new (code: number) => Error;
    createNode(parent: FsNode | null, name: string, mode: number, device: number): FsNode;
    hashRemoveNode(node: FsNode): void;
    mkdir(path: string): void;
    mount(type: unknown, options: object, mountpoint: string): void;
    writeFile(path: string, data: string | Uint8Array): void;
    readFile(path: string, options: { encoding: 'utf8' }): string;
    analyzePath(path: string): { exists: boolean };
}
export interface LumoraModule {
    FS: EmscriptenFs;
    ccall(name: string, result: 'string' | 'number' | null, kinds: string[], values: unknown[]): unknown;
}
export interface ModuleOptions {
    locateFile(name: string): string;
    instantiateWasm(imports: WebAssembly.Imports, ready: (instance: WebAssembly.Instance) => void): object;
    print(text: string): void;
    printErr(text: string): void;
    scripts: { make(): number; drop(context: number): void; evaluate(context: number, script: string): string };
}
export type MakeModule = (options: ModuleOptions) => Promise<LumoraModule>;
