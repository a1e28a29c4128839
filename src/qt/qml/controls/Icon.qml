// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// One of the program's drawings in a colour.
Image {
    id: root

    required property string name
    property color color: Theme.text
    property int size: 24
    // Cuts the corners off.
    property real radius: 0
    readonly property int pixels: Math.round(size * Theme.pixelRatio)

    width: size
    height: size
    sourceSize.width: pixels
    sourceSize.height: pixels
    source: name === "" ? "" : "image://icon/" + name + "/" + String(color).slice(-6) + "/" + radius * Theme.pixelRatio
    fillMode: Image.PreserveAspectFit
    Accessible.ignored: true
}
