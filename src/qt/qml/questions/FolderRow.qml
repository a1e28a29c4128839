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

    leftPadding: Theme.margin + indent
    rightPadding: Theme.margin

    contentItem: Row {
        spacing: Theme.gap

        Icon {
            anchors.verticalCenter: parent.verticalCenter
            name: root.image
            color: Theme.textSecondary
        }
        Text {
            width: parent.width - x
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            color: Theme.text
            font.pixelSize: Theme.body
            elide: root.elide
        }
    }
}
