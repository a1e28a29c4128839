// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// Stands below a verb while something of it is spoken, and stops that.
Rectangle {
    id: root

    required property VerbDetailScreen screen
    readonly property bool speaking: screen.spokenText !== ""

    height: speaking ? stop.implicitHeight + Theme.gap : 0
    visible: speaking
    color: Theme.header

    Rectangle {
        width: parent.width
        height: 1
        color: Theme.separator
    }
    Text {
        anchors.left: parent.left
        anchors.leftMargin: Theme.margin
        anchors.right: stop.left
        anchors.rightMargin: Theme.gap
        anchors.verticalCenter: parent.verticalCenter
        text: root.screen.spokenText
        textFormat: Text.PlainText
        color: Theme.text
        font.pixelSize: Theme.body
        elide: Text.ElideRight
        Accessible.ignored: true
    }
    TouchButton {
        id: stop
        objectName: "stopSpeaking"
        anchors.right: parent.right
        anchors.rightMargin: Theme.gap
        anchors.verticalCenter: parent.verticalCenter
        leftPadding: 12
        rightPadding: 12
        text: qsTrId("action.stop")
        onClicked: root.screen.stopSpeaking()

        contentItem: Row {
            spacing: Theme.gap

            Icon {
                anchors.verticalCenter: parent.verticalCenter
                name: "Stop"
                color: Theme.accentText
            }
            Text {
                anchors.verticalCenter: parent.verticalCenter
                text: stop.text
                color: Theme.accentText
                font.pixelSize: Theme.body
                font.weight: Font.DemiBold
            }
        }
    }
}
