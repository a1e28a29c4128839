// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// One tense: its title over six lines of pronoun and form.
Rectangle {
    id: root

    required property int index
    required property string title
    // How often its texts have come anew.
    required property int generation
    required property collectionLine line0
    required property collectionLine line1
    required property collectionLine line2
    required property collectionLine line3
    required property collectionLine line4
    required property collectionLine line5
    required property VerbDetailScreen screen
    required property TenseFits fits
    // The line of the form that was searched for; -1 for none.
    property int openedLine: -1
    // Right of it are the controls, whose taps are their own.
    readonly property real textEnd: play.x
    readonly property bool empty: line0.controlHidden
    // The square itself has the keyboard, not one of its lines and not the verb's card.
    readonly property bool isCurrent: activeFocus

    signal played(int line)
    signal formAsked(int line)
    signal tenseAsked

    // The line at that height; -1 above the first.
    function lineAt(y) {
        return Math.floor((y - lines.y) / sizes.height);
    }
    function takeKeyboard(line) {
        (lines.children[line] as FormLine)?.takeKeyboard();
    }

    objectName: "tense" + index
    Accessible.role: Accessible.ListItem
    Accessible.name: label.Accessible.name
    Accessible.focusable: true
    Accessible.focused: isCurrent
    radius: Theme.radius
    color: Theme.raised
    border.width: isCurrent ? 2 : 1
    border.color: isCurrent ? Theme.accentText : Theme.separator

    Text {
        id: label
        x: 14
        y: 8
        width: play.x - x
        height: Theme.cardTitleHeight
        text: root.title
        color: Theme.accentText
        font.pixelSize: Theme.cardTitle
        font.weight: Font.DemiBold
        wrapMode: Text.WordWrap
        lineHeight: lineCount > 1 ? 0.9 : 1
        verticalAlignment: Text.AlignVCenter
        activeFocusOnTab: true
        Accessible.role: Accessible.Heading
        Accessible.name: root.empty && root.screen.hasForms ? text + ", " + qsTrId("tense.unused") : text
        Accessible.focusable: true
        Accessible.onPressAction: root.tenseAsked()
        Keys.onReturnPressed: root.tenseAsked()
        Keys.onEnterPressed: root.tenseAsked()
        Keys.onSpacePressed: root.tenseAsked()

        Rectangle {
            anchors.fill: parent
            anchors.margins: -3
            visible: label.activeFocus
            radius: 6
            color: "transparent"
            border.width: 2
            border.color: Theme.accentText
        }
    }
    PlayControl {
        id: play
        x: parent.width - 14 - width
        y: label.y
        height: label.height
        visible: !root.empty
        ofTense: true
        objectName: "playTense" + root.index
        spoken: root.title
        onClicked: root.screen.playTense(root.index)
    }
    Loader {
        anchors.centerIn: parent
        active: root.empty && root.screen.hasForms
        sourceComponent: Text {
            text: qsTrId("tense.unused")
            color: Theme.textSecondary
            font.pixelSize: Theme.cardTitle
            font.italic: true
            Accessible.ignored: true
        }
    }
    TenseMeasures {
        id: sizes
        width: root.width - 28
        height: root.fits.lineHeight
        fit: root.fits.of(root.index, root.generation)
        marked: root.screen.marksForms
    }
    Column {
        id: lines
        x: label.x
        y: label.y + label.height + 4

        FormLine {
            measures: sizes
            line: root.line0
            opened: root.openedLine === 0
            onPlayed: root.played(0)
            onAsked: root.formAsked(0)
        }
        FormLine {
            measures: sizes
            line: root.line1
            opened: root.openedLine === 1
            onPlayed: root.played(1)
            onAsked: root.formAsked(1)
        }
        FormLine {
            measures: sizes
            line: root.line2
            opened: root.openedLine === 2
            onPlayed: root.played(2)
            onAsked: root.formAsked(2)
        }
        FormLine {
            measures: sizes
            line: root.line3
            opened: root.openedLine === 3
            onPlayed: root.played(3)
            onAsked: root.formAsked(3)
        }
        FormLine {
            measures: sizes
            line: root.line4
            opened: root.openedLine === 4
            onPlayed: root.played(4)
            onAsked: root.formAsked(4)
        }
        FormLine {
            measures: sizes
            line: root.line5
            opened: root.openedLine === 5
            onPlayed: root.played(5)
            onAsked: root.formAsked(5)
        }
    }
}
