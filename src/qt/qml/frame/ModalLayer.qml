// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound
import QtQuick
import Lumora

// The screens over the panes, each over the one before.
FocusScope {
    id: root

    required property ModalStack stack
    // The finger that pulls the side menu in.
    required property EdgePull pull
    // The topmost hides all that is below it.
    readonly property bool covers: (places.count > 0 && (places.itemAt(places.count - 1) as ModalPlace)?.covers) ?? false

    Repeater {
        id: places
        model: root.stack

        ModalPlace {
            anchors.fill: parent
            stack: root.stack
            pull: root.pull
        }
    }
}
