// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// One tense: its title over six lines of pronoun and form.
Rectangle {
    id: root

    required property int index
    required property string title
    required property collectionLine line0
    required property collectionLine line1
    required property collectionLine line2
    required property collectionLine line3
    required property collectionLine line4
    required property collectionLine line5
    // Of the forms; that of the pronouns' font is with it.
    required property int textSize
    required property FontMetrics metrics
    readonly property bool isCurrent: GridView.isCurrentItem && GridView.view.activeFocus

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

    function pronounSpace(line) {
        return metrics.advanceWidth(line.leading.trim());
    }

    component Measures: QtObject {
        property real width
        property real height
        property real pronounWidth
        property int textSize
    }
    // An inline component sees nothing of the card by itself.
    component Line: FormLine {
        required property Measures measures

        width: measures.width
        height: measures.height
        pronounWidth: measures.pronounWidth
        textSize: measures.textSize
    }

    objectName: "tense" + index
    radius: Theme.radius
    color: Theme.raised
    border.width: isCurrent ? 2 : 1
    border.color: isCurrent ? Theme.accentText : Theme.separator

    Text {
        id: label
        x: 14
        y: 10
        width: parent.width - 28
        height: 28
        text: root.title
        color: Theme.accentText
        font.pixelSize: Theme.title
        font.weight: Font.DemiBold
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 11
        verticalAlignment: Text.AlignVCenter
        activeFocusOnTab: true
        Accessible.role: Accessible.Heading
        Accessible.name: text
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
    Measures {
        id: sizes
        width: label.width
        height: (root.height - label.y - label.height - 4 - Theme.gap) / 6
        // As wide as the widest, but the form needs most of the line.
        pronounWidth: Math.min(0.4 * width, Math.ceil(Math.max(root.pronounSpace(root.line0), root.pronounSpace(root.line1), root.pronounSpace(root.line2), root.pronounSpace(root.line3), root.pronounSpace(root.line4), root.pronounSpace(root.line5))))
        textSize: root.textSize
    }
    Column {
        id: lines
        x: label.x
        y: label.y + label.height + 4

        Line {
            measures: sizes
            line: root.line0
            onPlayed: root.played(0)
            onAsked: root.formAsked(0)
        }
        Line {
            measures: sizes
            line: root.line1
            onPlayed: root.played(1)
            onAsked: root.formAsked(1)
        }
        Line {
            measures: sizes
            line: root.line2
            onPlayed: root.played(2)
            onAsked: root.formAsked(2)
        }
        Line {
            measures: sizes
            line: root.line3
            onPlayed: root.played(3)
            onAsked: root.formAsked(3)
        }
        Line {
            measures: sizes
            line: root.line4
            onPlayed: root.played(4)
            onAsked: root.formAsked(4)
        }
        Line {
            measures: sizes
            line: root.line5
            onPlayed: root.played(5)
            onAsked: root.formAsked(5)
        }
    }
}
