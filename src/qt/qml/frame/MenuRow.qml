// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// A destination in the side menu, white on its dark ground.
TableRow {
    id: root

    required text
    required property string image

    cellHeight: Math.round(52 * Math.max(1, Theme.textScale))
    color: "transparent"
    pressedColor: "#33ffffff"
    hoverColor: "#1affffff"
    separatorColor: "transparent"
    focusColor: Theme.barText
    objectName: image

    Icon {
        id: icon
        anchors.left: parent.left
        anchors.leftMargin: Theme.margin
        anchors.verticalCenter: parent.verticalCenter
        name: root.image
        color: Theme.barText
    }
    Text {
        height: parent.height
        anchors.left: icon.right
        anchors.leftMargin: Theme.margin
        anchors.right: parent.right
        anchors.rightMargin: Theme.margin
        verticalAlignment: Text.AlignVCenter
        text: root.text
        color: Theme.barText
        font.pixelSize: Theme.body
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 10
    }
}
