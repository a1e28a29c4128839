// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// A question about a file, for desktops without a dialog of their own.
FocusScope {
    id: root

    required property QtFileChooser chooser

    focus: true
    Accessible.role: Accessible.Dialog
    Accessible.name: chooser.title
    Keys.onEscapePressed: chooser.dismiss()
    Keys.onBackPressed: chooser.dismiss()

    Rectangle {
        anchors.fill: parent
        color: Theme.shade

        MouseArea {
            anchors.fill: parent
            onClicked: root.chooser.dismiss()
            onWheel: wheel => wheel.accepted = true
        }
    }
    Rectangle {
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(root.width - 2 * Theme.margin, 440)
        height: Math.min(form.implicitHeight, root.height - 2 * Theme.margin)
        y: root.height - height - Theme.margin
        radius: Theme.sheetRadius
        color: Theme.raised

        MouseArea {
            anchors.fill: parent
            onWheel: wheel => wheel.accepted = true
        }
        FileForm {
            id: form
            anchors.fill: parent
            focus: true
            chooser: root.chooser
        }
    }
}
