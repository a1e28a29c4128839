// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// One form of a square: pronoun, form and play control.
Item {
    id: root

    required property collectionLine line
    required property real pronounWidth
    required property int textSize
    // The form that was searched for.
    property bool marked: false

    signal played

    Accessible.ignored: line.accessibleName === ""
    Accessible.role: Accessible.StaticText
    Accessible.name: marked ? line.accessibleName + ", " + qsTrId("verb.searched") : line.accessibleName

    Loader {
        active: root.marked
        x: -10
        width: root.width + 16
        height: root.height
        sourceComponent: Rectangle {
            radius: 4
            color: Theme.marked

            MarkedEdge {
                height: parent.height
            }
        }
    }
    Text {
        id: pronoun
        width: root.pronounWidth
        height: parent.height
        text: root.line.leading
        color: Theme.textSecondary
        font.pixelSize: root.textSize - 1
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 11
        verticalAlignment: Text.AlignVCenter
    }
    Text {
        x: root.pronounWidth > 0 ? root.pronounWidth + Theme.gap : 0
        width: play.x - root.line.audioPadding - x
        height: parent.height
        text: Theme.brokenAtSpaces(root.line.trailing)
        color: Theme.text
        font.pixelSize: root.textSize
        fontSizeMode: Text.Fit
        minimumPixelSize: 9
        wrapMode: Text.WordWrap
        maximumLineCount: 2
        lineHeight: lineCount > 1 ? 0.85 : 1
        verticalAlignment: Text.AlignVCenter
    }
    PlayControl {
        id: play
        x: parent.width - width
        height: parent.height
        width: root.line.audioWidth
        visible: !root.line.controlHidden
        source: root.line.indicator
        spoken: root.line.accessibleName
        onClicked: root.played()
    }
}
