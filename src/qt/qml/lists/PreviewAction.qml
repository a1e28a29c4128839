// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// One thing that the row under a preview offers.
TouchButton {
    id: root

    required property int index
    required property var modelData
    readonly property int iconSize: 24
    readonly property color ink: modelData.destructive ? Theme.danger : Theme.text

    objectName: "previewAction" + index
    implicitHeight: Theme.touch + 4
    leftPadding: Theme.margin
    rightPadding: Theme.margin
    text: modelData.title

    contentItem: Item {
        Icon {
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            size: root.iconSize
            name: root.modelData.image
            color: root.ink
        }
        Text {
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width - root.iconSize
            text: root.text
            color: root.ink
            font.pixelSize: Theme.body
            elide: Text.ElideRight
        }
    }
}
