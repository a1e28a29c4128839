// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// A button that a screen puts into its bar.
BarButton {
    id: root

    required property AppScreen screen
    required property screenButton button
    readonly property bool on: button.image === "ic_favorite_toolbar"

    objectName: "bar." + button.identifier
    image: button.image
    text: button.title
    enabled: button.enabled
    // On or off as the screen has it, whatever a press would make of it.
    checkable: button.identifier === "favourite"
    checked: on
    tip: button.title !== "" ? button.title : qsTrId("button." + button.identifier)
    Accessible.name: tip
    Accessible.onToggleAction: clicked()
    onClicked: {
        checked = Qt.binding(() => on);
        root.screen.press(button.identifier);
    }
}
