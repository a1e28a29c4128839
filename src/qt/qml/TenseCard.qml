// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound
import QtQuick
import Lumora

// One tense: its title over six lines of pronoun and form.
Rectangle {
    id: root

    required property int index
    required property string title
    required property var lines
    readonly property bool isCurrent: GridView.isCurrentItem && GridView.view.activeFocus
    readonly property bool hasPronouns: lines.some(line => line.leading.trim() !== "")

    signal played(int line)

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
        minimumPixelSize: 10
        verticalAlignment: Text.AlignVCenter
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    Column {
        id: column
        anchors.top: label.bottom
        anchors.topMargin: 4
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.gap
        x: 14
        width: parent.width - 28

        Repeater {
            model: root.lines

            FormLine {
                width: column.width
                height: column.height / 6
                pronounWidth: root.hasPronouns ? 84 : 0
                onPlayed: root.played(index)
            }
        }
    }
}
