// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtQuick.Window as Desktop
import Lumora

// One of the program's drawings in a colour.
Image {
    id: root

    required property string name
    property color color: Theme.text
    property int size: 24
    // Cuts the corners off.
    property real radius: 0

    width: size
    height: size
    sourceSize: Qt.size(size * Desktop.Screen.devicePixelRatio, size * Desktop.Screen.devicePixelRatio)
    source: name === "" ? "" : "image://icon/" + name + "/" + String(color).slice(-6) + "/" + radius * Desktop.Screen.devicePixelRatio
    fillMode: Image.PreserveAspectFit
    Accessible.ignored: true
}
