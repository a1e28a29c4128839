// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// One form of a square: pronoun, form and play control.
Item {
    id: root

    required property int index
    required property var modelData
    property int pronounWidth: 84

    signal played

    Text {
        id: pronoun
        width: root.pronounWidth
        height: parent.height
        text: root.modelData.leading
        color: Theme.textSecondary
        font.pixelSize: Theme.body - 2
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 9
        verticalAlignment: Text.AlignVCenter
    }
    Text {
        anchors.left: pronoun.right
        anchors.leftMargin: root.pronounWidth > 0 ? Theme.gap : 0
        anchors.right: play.left
        anchors.rightMargin: root.modelData.audioPadding
        height: parent.height
        text: root.modelData.trailing
        color: Theme.text
        font.pixelSize: Theme.body - 1
        fontSizeMode: Text.Fit
        minimumPixelSize: 9
        wrapMode: Text.WordWrap
        maximumLineCount: 2
        verticalAlignment: Text.AlignVCenter
    }
    PlayControl {
        id: play
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: root.modelData.audioWidth
        visible: !root.modelData.controlHidden
        source: root.modelData.indicator
        spoken: root.modelData.leading + " " + root.modelData.trailing
        onClicked: root.played()
    }
}
