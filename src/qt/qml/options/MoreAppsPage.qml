// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// The maker's other programs.
ScreenPage {
    id: root

    readonly property TableScreen apps: screen as TableScreen

    color: Theme.grouped

    TableContent {
        id: content
        anchors.fill: parent
        table: root.apps.table
        name: root.apps.title
        stickyHeaders: false
        list.header: Item {
            width: 1
            height: Theme.margin
        }
        delegate: AppRow {
            width: ListView.view.width
            table: content.table
        }
        Component.onCompleted: root.apps.prepare()
    }
}
