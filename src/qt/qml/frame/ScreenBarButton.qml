// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// A button that a screen puts into its bar.
BarButton {
    id: root

    required property AppScreen screen
    required property screenButton modelData
    readonly property bool on: modelData.image === "ic_favorite_toolbar"

    objectName: "bar." + modelData.identifier
    image: modelData.image
    text: modelData.title
    enabled: modelData.enabled
    // On or off as the screen has it, whatever a press would make of it.
    checkable: modelData.identifier === "favourite"
    checked: on
    tip: modelData.title !== "" ? modelData.title : qsTrId("button." + modelData.identifier)
    Accessible.name: tip
    Accessible.onToggleAction: clicked()
    onClicked: {
        checked = Qt.binding(() => on);
        root.screen.press(modelData.identifier);
    }
}
