// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// The title of a section.
Rectangle {
    id: root

    property alias text: label.text
    // Kept free at its end for other controls.
    property real room: 0

    color: Theme.header
    Accessible.role: Accessible.Heading
    Accessible.name: text

    Text {
        id: label
        anchors.fill: parent
        anchors.leftMargin: Theme.margin
        anchors.rightMargin: Theme.margin + root.room
        verticalAlignment: Text.AlignVCenter
        color: Theme.accentText
        font.pixelSize: Theme.small + 1
        font.weight: Font.DemiBold
        fontSizeMode: Text.Fit
        minimumPixelSize: 10
        wrapMode: Text.WordWrap
        maximumLineCount: 2
        elide: Text.ElideRight
    }
}
