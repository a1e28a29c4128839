// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// A screen that is one table of verbs.
ScreenPage {
    id: root

    readonly property TableScreen tableScreen: screen as TableScreen

    VerbTable {
        anchors.fill: parent
        screen: root.tableScreen
    }
}
