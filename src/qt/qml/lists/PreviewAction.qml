// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// One thing that the row under a preview offers.
TouchButton {
    id: root

    required property int index
    required property var modelData
    readonly property color ink: modelData.destructive ? Theme.danger : Theme.text

    objectName: "previewAction" + index
    implicitHeight: Theme.touch + 4
    text: modelData.title

    contentItem: Item {
        Text {
            anchors.left: parent.left
            anchors.leftMargin: Theme.margin
            anchors.right: icon.left
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            color: root.ink
            font.pixelSize: Theme.body
            elide: Text.ElideRight
        }
        Icon {
            id: icon
            anchors.right: parent.right
            anchors.rightMargin: Theme.margin
            anchors.verticalCenter: parent.verticalCenter
            name: root.modelData.image
            color: root.ink
        }
    }
}
