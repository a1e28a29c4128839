// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// The options: what the program is and who made it, above its settings.
ScreenPage {
    id: root

    readonly property OptionsScreen options: screen as OptionsScreen

    color: Theme.grouped

    TableContent {
        id: content
        anchors.fill: parent
        table: root.options.table
        name: root.options.title
        stickyHeaders: false
        list.cacheBuffer: 4000
        list.header: AboutHeader {
            width: ListView.view.width
            options: root.options
            // Its height is known only after the first layout: start at the top
            // then.
            onHeightChanged: if (!content.list.moved)
                content.list.positionViewAtBeginning()
        }
        list.footer: Item {
            width: 1
            height: 2 * Theme.margin
        }
        delegate: OptionRow {
            width: ListView.view.width
            table: content.table
        }
        Component.onCompleted: root.options.prepare()
    }
}
