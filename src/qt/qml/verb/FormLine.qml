// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// One form of a square: pronoun, form and play control.
Rectangle {
    id: root

    required property collectionLine line
    // How the lines of the square fit.
    required property TenseMeasures measures
    // The form that was searched for.
    property bool opened: false

    signal played
    // The sheet of the form is asked for.
    signal asked

    function takeKeyboard() {
        if (play.visible)
            play.forceActiveFocus(Qt.TabFocusReason);
    }

    width: measures.width
    height: measures.height
    color: play.running ? Theme.pressed : "transparent"
    radius: 6
    Accessible.ignored: line.accessibleName === ""
    Accessible.role: Accessible.StaticText
    Accessible.name: opened ? line.accessibleName + ", " + qsTrId("verb.searched") : line.accessibleName
    Accessible.description: line.lineStyle.description
    Accessible.onPressAction: asked()
    Keys.onPressed: event => {
        const menu = event.key === Qt.Key_Menu || event.key === Qt.Key_F10 && event.modifiers & Qt.ShiftModifier;
        event.accepted = menu || event.key === Qt.Key_Return || event.key === Qt.Key_Enter;
        if (event.accepted)
            asked();
    }

    Loader {
        active: root.opened
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
    LeadingText {
        id: leading
        pronoun: root.line.leading
        lineStyle: root.line.lineStyle
        above: root.measures.stacked
        y: root.measures.stacked ? form.y - height : form.y + form.baselineOffset - baselineOffset - captionHeight
        // An elided pronoun touches its form, which begins where the others do.
        width: root.measures.stacked ? play.x : root.measures.pronounWidth + (root.line.lineStyle.joined ? root.measures.blank : 0)
        horizontalAlignment: root.measures.stacked ? Text.AlignLeft : Text.AlignRight
        font.pixelSize: root.measures.pronounSize
    }
    FormText {
        id: form
        x: root.measures.stacked || root.measures.pronounWidth === 0 ? 0 : root.measures.pronounWidth + root.measures.blank
        y: (root.height - height + leading.captionHeight + (root.measures.stacked ? leading.height : 0)) / 2
        width: play.x - x
        markup: root.line.lineStyle.markup
        marked: root.measures.marked
        font.pixelSize: root.measures.size
    }
    PlayControl {
        id: play
        x: parent.width - width
        height: parent.height
        width: root.line.audioWidth
        pressedByReturn: false
        visible: !root.line.controlHidden
        source: root.line.indicator
        spoken: root.line.accessibleName
        onClicked: root.played()
    }
}
