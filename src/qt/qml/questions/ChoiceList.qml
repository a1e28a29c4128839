// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtQuick.Controls.Basic

// What can be chosen from, below what it is about. Scrolls where it is too long,
// and keeps what has the keyboard in sight.
Flickable {
    id: root

    default property alias content: column.data
    property alias topPadding: column.topPadding
    property alias bottomPadding: column.bottomPadding

    // Called by a choice that gets the keyboard.
    function keepInSight(choice) {
        contentY = Math.max(0, Math.min(choice.y, Math.max(contentY, choice.y + choice.height - height)));
    }

    contentHeight: column.implicitHeight
    clip: interactive
    boundsBehavior: Flickable.StopAtBounds
    interactive: contentHeight > height

    ScrollBar.vertical: ScrollBar {
        // It would fade out on a sheet that has just got its height.
        visible: root.interactive
        policy: ScrollBar.AlwaysOn
        Accessible.ignored: true
    }

    Column {
        id: column
        width: parent.width
    }
}
