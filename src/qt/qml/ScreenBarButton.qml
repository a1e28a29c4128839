// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// A button that a screen puts into its bar.
BarButton {
    id: root

    required property Screen screen
    required property var modelData

    objectName: "bar." + modelData.identifier
    image: modelData.image
    text: modelData.title
    enabled: modelData.enabled
    Accessible.name: modelData.title !== "" ? modelData.title : qsTrId("button." + modelData.identifier)
    onClicked: root.screen.press(modelData.identifier)
}
