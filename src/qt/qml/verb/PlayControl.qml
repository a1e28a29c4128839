// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Templates as T
import Lumora

// A round progress indicator with the play button in it. At rest, as nearly all
// are, it is one quiet picture.
T.AbstractButton {
    id: root

    property IndicatorSource source
    property string spoken
    // Reads all forms of a tense.
    property bool ofTense: false
    // Space always does.
    property bool pressedByReturn: true
    readonly property bool running: source !== null && source.running

    implicitWidth: 30
    implicitHeight: 30
    objectName: "play"
    focusPolicy: Qt.TabFocus
    opacity: down ? 0.6 : 1
    Accessible.name: ofTense ? qsTrId("action.play.tense") + ": " + spoken : qsTrId("action.play") + " " + spoken
    Accessible.onPressAction: clicked()
    Keys.onPressed: event => {
        event.accepted = pressedByReturn && (event.key === Qt.Key_Return || event.key === Qt.Key_Enter);
        if (event.accepted)
            clicked();
    }

    contentItem: Image {
        source: root.running ? "" : root.ofTense ? Theme.playTensePicture : Theme.playPicture
        sourceSize.width: Theme.playPixels
        sourceSize.height: Theme.playPixels
        fillMode: Image.Pad

        Loader {
            anchors.centerIn: parent
            active: root.running || root.visualFocus || root.hovered
            sourceComponent: ring
        }
    }

    // What it shows while its row is spoken, it has the keyboard or the mouse is
    // over it.
    Component {
        id: ring

        Item {
            ToolTip.visible: root.hovered
            ToolTip.delay: Theme.tipDelay
            ToolTip.timeout: Theme.tipTime
            ToolTip.text: root.ofTense ? qsTrId("action.play.tense") : qsTrId("action.play")
            implicitWidth: 30
            implicitHeight: 30

            RoundProgress {
                anchors.fill: parent
                visible: root.running
                source: root.source
            }
            Icon {
                visible: root.running
                name: "PlayAgain"
                color: Theme.playInk
                size: 30
            }
            Rectangle {
                anchors.fill: parent
                radius: 15
                color: "transparent"
                border.width: root.visualFocus ? 3 : root.running || root.hovered ? 1 : 0
                border.color: root.visualFocus ? Theme.accentText : root.running ? Theme.playBorder : Theme.textSecondary
            }
        }
    }
}
