// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// A row of the detail table: a tense's title, the verb's translation, or a form
// with its pronoun and its play control. A verb has many, and they come at
// once: each is as few items as it can be.
Rectangle {
    id: root

    required property int index
    required property int kind
    required property string title
    required property string text
    required property string detailText
    required property string accessibleName
    required property string reuseIdentifier
    required property IndicatorSource indicatorSource
    required property QtTableView table
    readonly property bool isCell: kind === TableItemModel.Cell
    readonly property bool isForm: reuseIdentifier === "CellConjugation"
    readonly property bool isCurrent: ListView.isCurrentItem && ListView.view !== null && ListView.view.parent.activeFocus

    // For what is to be told of the form, or of the tense.
    signal asked

    // What the keyboard does to a row.
    function activate(key) {
        if (key === Qt.Key_Space)
            table.model.tapAccessory(index);
        else
            asked();
    }
    function adjust(step) {
        return false;
    }

    implicitHeight: isCell ? Theme.touch + 4 : Theme.headerHeight
    color: isCell ? Theme.background : Theme.header
    border.width: isCurrent ? 2 : 0
    border.color: Theme.accentText
    Accessible.role: isCell ? Accessible.ListItem : Accessible.Heading
    Accessible.focusable: isCell
    Accessible.focused: isCurrent
    Accessible.name: isCell ? accessibleName : title
    Accessible.onPressAction: asked()

    Text {
        id: leading
        x: Theme.margin
        width: !root.isForm ? root.width - 2 * x : text === "" ? 0 : Math.round(root.width * 0.27)
        height: parent.height
        text: root.isCell ? root.text : root.title
        color: !root.isCell ? Theme.accentText : root.isForm ? Theme.textSecondary : Theme.text
        font.pixelSize: !root.isCell ? Theme.small + 1 : root.isForm ? Theme.body - 1 : Theme.body
        font.weight: root.isCell ? Font.Normal : Font.DemiBold
        font.italic: root.isCell && !root.isForm
        fontSizeMode: root.isCell ? Text.Fit : Text.HorizontalFit
        minimumPixelSize: 11
        wrapMode: root.isCell ? Text.WordWrap : Text.NoWrap
        maximumLineCount: root.isCell ? 2 : 1
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
    }
    Text {
        visible: root.isForm
        x: leading.width > 0 ? leading.x + leading.width + Theme.gap : leading.x
        width: play.x - Theme.gap - x
        height: parent.height
        text: Theme.brokenAtSpaces(root.detailText)
        color: Theme.text
        font.pixelSize: Theme.body
        fontSizeMode: Text.Fit
        minimumPixelSize: 9
        wrapMode: Text.WordWrap
        maximumLineCount: 2
        lineHeight: lineCount > 1 ? 0.85 : 1
        verticalAlignment: Text.AlignVCenter
    }
    PlayControl {
        id: play
        x: parent.width - width - Theme.gap
        // As high as a finger can have it.
        height: parent.height
        width: 50
        focusPolicy: Qt.NoFocus
        visible: root.isForm
        source: root.indicatorSource
        spoken: root.accessibleName
        onClicked: root.table.model.tapAccessory(root.index)
    }
    Rectangle {
        visible: root.isCell && root.table.separators
        y: parent.height - 1
        width: parent.width
        height: 1
        color: Theme.separator
    }
}
