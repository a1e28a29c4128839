// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// Opens the menu of a verb's page.
BarButton {
    id: root

    required property VerbDetailScreen screen

    objectName: "bar.more"
    image: "more"
    text: qsTrId("verb.menu")
    Accessible.name: text
    onClicked: {
        // Only now is there a menu: few ever ask for it.
        if (menu.status === Loader.Null)
            menu.setSource("qrc:/Lumora/VerbMenu.qml", {
                "screen": root.screen
            });
        menu.menu.openBelow(root);
    }

    onScreenChanged: menu.source = ""

    Loader {
        id: menu

        // Untyped: naming its type would load it before it is needed.
        readonly property var menu: item
    }
}
