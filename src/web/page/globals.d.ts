// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

declare module 'lumora-module' {
    const createModule: import('./module').MakeModule;
    export default createModule;
}
declare module 'lumora-icons' {
    // The sources of the pictures by their names.
    const icons: Record<string, string>;
    export default icons;
}
interface FileSystemDirectoryHandle {
    keys(): AsyncIterableIterator<string>;
}
