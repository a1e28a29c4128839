// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// One verb in a list: French over its translation, a star for a favourite.
TableRow {
    id: root

    required text
    required property string note
    required property string detailText
    required property string image
    // In French, French is no translation.
    readonly property string translation: detailText === text ? "" : detailText

    Accessible.name: text + (note === "" ? "" : ", " + note) + (translation === "" ? "" : ", " + translation) + (image === "" ? "" : ", " + qsTrId("button.favourite"))
    onPressAndHold: if (isCell && swipe.position === 0)
        table.model.hold(index)

    Column {
        id: texts
        anchors.left: parent.left
        anchors.leftMargin: Theme.margin
        anchors.right: star.left
        anchors.rightMargin: Theme.gap
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2

        Row {
            spacing: Theme.gap

            Text {
                width: Math.min(implicitWidth, texts.width - (distinction.visible ? distinction.width + parent.spacing : 0))
                text: root.text
                color: Theme.text
                font.pixelSize: Theme.body
                font.weight: Font.DemiBold
                // The longest are made a little smaller rather than cut.
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: Math.round(0.7 * font.pixelSize)
                elide: Text.ElideRight
            }
            Text {
                id: distinction
                visible: root.note !== ""
                text: "(" + root.note + ")"
                color: Theme.textSecondary
                font.pixelSize: Theme.body
            }
        }
        Text {
            width: parent.width
            visible: text !== ""
            text: root.translation
            color: Theme.textSecondary
            font.pixelSize: Theme.small + 1
            elide: Text.ElideRight
        }
    }
    Icon {
        id: star
        anchors.right: parent.right
        anchors.rightMargin: Theme.margin + root.trailingSpace
        anchors.verticalCenter: parent.verticalCenter
        name: root.image
        color: Theme.star
        size: 20
    }
}
