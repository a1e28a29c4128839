// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound
import QtQuick
import Lumora

// The verbs of a list screen.
TableContent {
    id: root

    required property TableScreen screen

    table: screen.table
    name: screen.title
    delegate: VerbRow {
        width: ListView.view.width
        table: root.table
        trailingSpace: root.indexWidth
    }
    Component.onCompleted: {
        screen.attach(root);
        screen.prepare();
    }
}
