// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// The title of a section.
Rectangle {
    id: root

    property alias text: label.text

    color: Theme.header
    Accessible.role: Accessible.Heading
    Accessible.name: text

    Text {
        id: label
        anchors.fill: parent
        anchors.leftMargin: Theme.margin
        anchors.rightMargin: Theme.margin
        verticalAlignment: Text.AlignVCenter
        color: Theme.accentText
        font.pixelSize: Theme.small + 1
        font.weight: Font.DemiBold
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 10
        elide: Text.ElideRight
    }
}
