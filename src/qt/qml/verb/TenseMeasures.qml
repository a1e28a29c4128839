// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick

// What the lines of one square have in common. One by one, so that a line hears
// only of what has changed.
QtObject {
    required property var fit
    property real width
    property real height
    property bool marked
    readonly property int size: fit.size
    readonly property int pronounSize: fit.pronounSize
    readonly property real pronounWidth: fit.pronounWidth
    readonly property real blank: fit.blank
    readonly property bool stacked: fit.stacked
}
