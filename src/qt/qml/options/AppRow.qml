// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// Another program: its icon and its name.
GroupedRow {
    id: root

    required text
    required property string image

    cellHeight: Math.max(72, Math.round(64 * Theme.textScale))
    objectName: image

    Icon {
        id: icon
        anchors.left: parent.left
        anchors.leftMargin: 2 * Theme.margin
        anchors.verticalCenter: parent.verticalCenter
        name: root.image
        size: 52
        radius: 10
    }
    Text {
        anchors.left: icon.right
        anchors.leftMargin: Theme.margin
        anchors.right: parent.right
        anchors.rightMargin: 2 * Theme.margin
        anchors.verticalCenter: parent.verticalCenter
        text: root.text
        color: Theme.text
        font.pixelSize: Theme.body
        wrapMode: Text.WordWrap
        maximumLineCount: 2
        elide: Text.ElideRight
    }
}
