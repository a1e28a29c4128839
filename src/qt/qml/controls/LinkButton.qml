// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// A button that opens an address outside the program, and shows it.
TouchButton {
    id: root

    property real maximumWidth: 10000

    width: Math.min(implicitWidth, maximumWidth)
    height: implicitHeight
    leftPadding: Theme.gap
    rightPadding: Theme.gap

    contentItem: Text {
        text: root.text
        color: Theme.accentText
        font.pixelSize: Theme.body
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 10
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }
}
