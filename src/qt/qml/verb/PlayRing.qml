// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// What a play control shows while its row is spoken or it has the keyboard.
Item {
    id: root

    property IndicatorSource source
    property bool running: false
    property bool focused: false

    width: 30
    height: 30

    RoundProgress {
        anchors.fill: parent
        visible: root.running
        source: root.source
    }
    Icon {
        visible: root.running
        name: "PlayAgain"
        color: Theme.playInk
        size: 30
    }
    Rectangle {
        anchors.fill: parent
        radius: 15
        color: "transparent"
        border.width: root.focused ? 3 : root.running ? 1 : 0
        border.color: root.focused ? Theme.accentText : Theme.playBorder
    }
}
