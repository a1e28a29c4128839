// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
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
    readonly property bool running: source !== null && source.running

    implicitWidth: 30
    implicitHeight: 30
    objectName: "play"
    focusPolicy: Qt.TabFocus
    opacity: down ? 0.6 : 1
    Accessible.name: ofTense ? qsTrId("action.play.tense") + ": " + spoken : qsTrId("action.play") + " " + spoken
    Accessible.onPressAction: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    contentItem: Image {
        source: root.running ? "" : root.ofTense ? Theme.playTensePicture : Theme.playPicture
        sourceSize.width: Theme.playPixels
        sourceSize.height: Theme.playPixels
        fillMode: Image.Pad

        Loader {
            anchors.centerIn: parent
            active: root.running || root.visualFocus
            sourceComponent: ring
        }
    }

    // What it shows while its row is spoken or it has the keyboard.
    Component {
        id: ring

        Item {
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
                border.width: root.visualFocus ? 3 : root.running ? 1 : 0
                border.color: root.visualFocus ? Theme.accentText : Theme.playBorder
            }
        }
    }
}
