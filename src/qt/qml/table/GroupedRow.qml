// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// A row of a table whose sections are cards on a shaded ground.
TableRow {
    id: root

    required property int row
    required property bool lastInSection
    readonly property bool first: row === 0

    color: "transparent"
    pressedColor: "transparent"
    hoverColor: "transparent"
    separatorColor: "transparent"
    focusInset: Theme.margin
    headerText: groupTitle
    footerText: groupNote

    Rectangle {
        id: card
        anchors.fill: parent
        anchors.leftMargin: Theme.margin
        anchors.rightMargin: Theme.margin
        radius: root.first || root.lastInSection ? Theme.radius : 0
        color: !root.selectable ? Theme.raised : root.down ? Theme.pressed : root.hovered ? Theme.hover : Theme.raised

        // Squares the corners that lie inside the card.
        Rectangle {
            visible: !root.first
            width: parent.width
            height: parent.radius
            color: parent.color
        }
        Rectangle {
            visible: !root.lastInSection
            anchors.bottom: parent.bottom
            width: parent.width
            height: parent.radius
            color: parent.color
        }
        Rectangle {
            visible: !root.lastInSection
            anchors.bottom: parent.bottom
            x: Theme.margin
            width: parent.width - x
            height: 1
            color: Theme.separator
        }
    }

    Component {
        id: groupTitle

        Text {
            topPadding: Theme.margin + Theme.gap
            bottomPadding: 6
            leftPadding: 2 * Theme.margin
            rightPadding: 2 * Theme.margin
            text: root.title
            color: Theme.accentText
            font.pixelSize: Theme.small + 1
            font.weight: Font.DemiBold
            wrapMode: Text.WordWrap
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
    }
    Component {
        id: groupNote

        Text {
            topPadding: 6
            leftPadding: 2 * Theme.margin
            rightPadding: 2 * Theme.margin
            text: root.title
            color: Theme.textSecondary
            font.pixelSize: Theme.small
            wrapMode: Text.WordWrap
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
