// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtQuick.Templates as T
import Lumora

// A round progress indicator with the play button in it.
T.AbstractButton {
    id: root

    property IndicatorSource source
    property string spoken

    implicitWidth: 30
    implicitHeight: 30
    objectName: "play"
    focusPolicy: Qt.TabFocus
    Accessible.name: qsTrId("action.play") + " " + spoken
    Keys.onReturnPressed: click()
    Keys.onEnterPressed: click()

    contentItem: Item {
        RoundProgress {
            id: ring
            anchors.centerIn: parent
            width: 30
            height: 30
            source: root.source
            opacity: root.down ? 0.6 : 1
        }
        Rectangle {
            anchors.fill: ring
            radius: 15
            color: "transparent"
            border.width: root.visualFocus ? 3 : 1
            border.color: root.visualFocus ? Theme.accentSecondary : Theme.playBorder
        }
        Icon {
            anchors.centerIn: ring
            name: root.source !== null && root.source.running ? "Pause" : "Play"
            color: Theme.playInk
            size: 30
        }
    }
}
