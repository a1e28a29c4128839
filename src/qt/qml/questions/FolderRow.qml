// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// A folder to step into or out of.
TouchButton {
    id: root

    required property string image
    property int indent: 0
    property int elide: Text.ElideRight

    contentItem: Item {
        Icon {
            id: icon
            x: Theme.margin + root.indent
            anchors.verticalCenter: parent.verticalCenter
            name: root.image
            color: Theme.textSecondary
        }
        Text {
            anchors.left: icon.right
            anchors.leftMargin: Theme.gap
            anchors.right: parent.right
            anchors.rightMargin: Theme.margin
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            color: Theme.text
            font.pixelSize: Theme.body
            elide: root.elide
        }
    }
}
