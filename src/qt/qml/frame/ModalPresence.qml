// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// How far a modal has come into view: 1 when it is there. Brings it in, and
// takes it out when it leaves.
QtObject {
    id: root

    required property Modal modal
    // Above 0 where something else has begun to bring it in.
    property real value: 0
    property bool held: false

    function comeIn() {
        slide.to = 1;
        slide.restart();
    }

    onHeldChanged: if (held)
        slide.stop()

    readonly property NumberAnimation slide: NumberAnimation {
        target: root
        property: "value"
        duration: Theme.slow
        easing.type: Easing.OutCubic
        onFinished: if (root.modal.leaving)
            root.modal.finish()
    }
    readonly property Connections leaving: Connections {
        target: root.modal
        function onLeavingChanged() {
            root.slide.to = 0;
            root.slide.restart();
        }
    }

    Component.onCompleted: if (!held)
        comeIn()
}
