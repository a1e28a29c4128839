// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// A row of the detail table: the verb's translation, or a form with its
// pronoun and its play control.
TableRow {
    id: root

    required text
    required property string detailText
    required property string reuseIdentifier
    required property int control
    required property IndicatorSource indicatorSource
    readonly property bool isForm: reuseIdentifier === "CellConjugation"

    function activate() {
        if (control === TableItemModel.Play)
            table.model.tapAccessory(index);
        else
            table.model.tap(index);
    }

    cellHeight: Theme.touch + 4
    Accessible.name: text + " " + detailText

    Text {
        id: pronoun
        anchors.left: parent.left
        anchors.leftMargin: Theme.margin
        anchors.verticalCenter: parent.verticalCenter
        width: !root.isForm ? root.width - 2 * Theme.margin : text === "" ? 0 : Math.round(root.width * 0.27)
        text: root.text
        color: root.isForm ? Theme.textSecondary : Theme.text
        font.pixelSize: root.isForm ? Theme.body - 1 : Theme.body
        font.italic: !root.isForm
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 10
    }
    Text {
        visible: root.isForm
        anchors.left: pronoun.right
        anchors.leftMargin: pronoun.width > 0 ? Theme.gap : 0
        anchors.right: play.left
        anchors.rightMargin: Theme.gap
        anchors.verticalCenter: parent.verticalCenter
        text: root.detailText
        color: Theme.text
        font.pixelSize: Theme.body
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 10
    }
    PlayControl {
        id: play
        anchors.right: parent.right
        anchors.rightMargin: Theme.gap
        anchors.verticalCenter: parent.verticalCenter
        visible: root.control === TableItemModel.Play
        width: 50
        focusPolicy: Qt.NoFocus
        source: root.indicatorSource
        spoken: root.text + " " + root.detailText
        onClicked: root.table.model.tapAccessory(root.index)
    }
}
