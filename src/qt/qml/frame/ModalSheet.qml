// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// A screen that rises over the others: all of a narrow window, a sheet in the
// middle of a wide one.
FocusScope {
    id: root

    required property Modal modal
    required property bool fullScreen
    // Nothing below it shows.
    readonly property bool covers: fullScreen && presence.value === 1
    readonly property real restY: (height - sheet.height) / 2

    ModalPresence {
        id: presence
        modal: root.modal
    }
    Rectangle {
        anchors.fill: parent
        color: Theme.shade
        opacity: presence.value
        visible: !root.fullScreen

        MouseArea {
            anchors.fill: parent
            onClicked: root.modal.close()
            onWheel: wheel => wheel.accepted = true
        }
    }
    Rectangle {
        id: sheet
        objectName: "modalSheet"
        anchors.horizontalCenter: parent.horizontalCenter
        y: root.restY + (1 - presence.value) * (root.height - root.restY)
        width: root.fullScreen ? root.width : Math.min(540, root.width - 2 * Theme.margin)
        height: root.fullScreen ? root.height : Math.min(720, root.height - 4 * Theme.margin)
        radius: root.fullScreen ? 0 : Theme.sheetRadius
        color: Theme.grouped

        MouseArea {
            anchors.fill: parent
            onWheel: wheel => wheel.accepted = true
        }
        ScreenStack {
            anchors.fill: parent
            anchors.bottomMargin: sheet.radius
            focus: true
            screens: root.modal.screens
            cornerRadius: sheet.radius
            onBackRequested: root.modal.close()
        }
        Rectangle {
            // Sets the sheet off where the shade around it is as dark.
            anchors.fill: parent
            visible: Theme.dark && !root.fullScreen
            radius: sheet.radius
            color: "transparent"
            border.width: 1
            border.color: Theme.separator
        }
    }
}
