// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// One verb that a text may mean, and which form of it, or why.
TouchButton {
    id: root

    required property searchReading modelData

    text: modelData.headword + (modelData.detail === "" ? "" : ", " + modelData.detail) + (modelData.kind === "" ? "" : ", " + modelData.kind)
    padding: 0

    background: Rectangle {
        radius: Theme.radius
        color: root.down ? root.pressedColor : Theme.marked
        border.width: root.visualFocus ? 2 : 1
        border.color: root.visualFocus ? root.focusColor : Theme.star
    }
    contentItem: Item { // qmllint disable deferred-property-id
        Column {
            id: texts
            anchors.left: parent.left
            anchors.leftMargin: 12
            anchors.right: arrow.left
            anchors.rightMargin: Theme.gap
            anchors.verticalCenter: parent.verticalCenter
            spacing: 2

            Row {
                spacing: Theme.gap

                Text {
                    id: headword
                    width: Math.min(implicitWidth, texts.width)
                    text: root.modelData.headword
                    color: Theme.text
                    font.pixelSize: Theme.body
                    font.weight: Font.DemiBold
                    elide: Text.ElideRight
                }
                Text {
                    width: texts.width - headword.width - parent.spacing
                    height: headword.height
                    visible: text !== "" && width > 0
                    text: root.modelData.kind
                    color: Theme.textSecondary
                    font.pixelSize: Theme.small
                    verticalAlignment: Text.AlignVCenter
                    horizontalAlignment: Text.AlignRight
                    elide: Text.ElideRight
                }
            }
            Text {
                width: parent.width
                visible: text !== ""
                text: root.modelData.detail
                color: Theme.textSecondary
                font.pixelSize: Theme.small + 1
                elide: Text.ElideRight
            }
        }
        Icon {
            id: arrow
            anchors.right: parent.right
            anchors.rightMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            name: "disclosure"
            color: Theme.textSecondary
            size: 18
        }
    }
}
