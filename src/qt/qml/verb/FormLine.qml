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

    signal played
    // For what is to be told of the form.
    signal asked

    function takeKeyboard() {
        play.forceActiveFocus(Qt.TabFocusReason);
    }

    Accessible.ignored: line.accessibleName === ""
    Accessible.role: Accessible.StaticText
    Accessible.name: line.accessibleName
    Accessible.onPressAction: asked()
    Keys.onPressed: event => {
        const menu = event.key === Qt.Key_Menu || event.key === Qt.Key_F10 && event.modifiers & Qt.ShiftModifier;
        event.accepted = menu || event.key === Qt.Key_Return || event.key === Qt.Key_Enter;
        if (event.accepted)
            asked();
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
