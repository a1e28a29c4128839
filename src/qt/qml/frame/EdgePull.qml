// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick

// The strip at the window's left edge from which the side menu is pulled in.
Item {
    id: root

    readonly property alias active: drag.active
    readonly property real distance: Math.max(0, drag.activeTranslation.x)
    readonly property real velocity: drag.centroid.velocity.x

    signal begun

    width: 20

    DragHandler {
        id: drag
        target: null
        yAxis.enabled: false
        grabPermissions: PointerHandler.CanTakeOverFromAnything
        onActiveChanged: if (active)
            root.begun()
    }
}
