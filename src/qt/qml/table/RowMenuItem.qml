// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtQuick.Controls.Basic
import Lumora

// One thing that a row's menu offers.
MenuItem {
    id: root

    property string image
    property bool destructive: false
    readonly property color ink: destructive ? Theme.danger : Theme.text

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(Theme.touch, implicitContentHeight + Theme.gap)
    leftPadding: 12
    rightPadding: 16
    arrow: null
    indicator: null
    Accessible.name: text
    Accessible.onPressAction: triggered()

    contentItem: Row {
        spacing: 12

        Icon {
            anchors.verticalCenter: parent.verticalCenter
            name: root.image
            color: root.ink
            size: 20
        }
        Text {
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            color: root.ink
            font.pixelSize: Theme.body
        }
    }
    background: Rectangle {
        radius: 6
        color: root.down || root.highlighted ? Theme.pressed : "transparent"
    }
}
