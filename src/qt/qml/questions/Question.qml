// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// What lies over everything while it is asked: a shade, the keys that lead from
// answer to answer and the one that leads out.
FocusScope {
    id: root

    required property string heading
    property real shade: 1
    // How far it has come into view.
    property real presence: 0

    // Left without an answer, by a key or by a tap beside it.
    signal dismissed
    signal tappedBeside
    // Enter or Space was pressed while no answer had the keyboard.
    signal confirmed

    function moveFocus(forward) {
        (Window.activeFocusItem ?? root).nextItemInFocusChain(forward).forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason);
    }

    focus: true
    Accessible.role: Accessible.Dialog
    Accessible.name: heading
    Keys.onEscapePressed: dismissed()
    Keys.onBackPressed: dismissed()
    Keys.onReturnPressed: confirmed()
    Keys.onEnterPressed: confirmed()
    Keys.onSpacePressed: confirmed()
    Keys.onDownPressed: moveFocus(true)
    Keys.onUpPressed: moveFocus(false)
    Component.onCompleted: presence = 1

    Behavior on presence {
        NumberAnimation {
            duration: Theme.quick
            easing.type: Easing.OutCubic
        }
    }
    Rectangle {
        anchors.fill: parent
        color: Theme.shade
        opacity: root.presence * root.shade

        MouseArea {
            anchors.fill: parent
            onClicked: root.tappedBeside()
            onWheel: wheel => wheel.accepted = true
        }
    }
}
