// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtQuick.Controls.Basic
import Lumora

// What a play control shows while its row is spoken, it has the keyboard or the
// mouse is over it.
Item {
    id: root

    property IndicatorSource source
    property bool running: false
    property bool focused: false
    property bool hovered: false
    property string tip

    ToolTip.visible: hovered && enabled
    ToolTip.delay: Theme.tipDelay
    ToolTip.timeout: Theme.tipTime
    ToolTip.text: tip
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
        border.width: root.focused ? 3 : root.running || root.hovered ? 1 : 0
        border.color: root.focused ? Theme.accentText : root.running ? Theme.playBorder : Theme.textSecondary
    }
}
