// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// An action on a sheet, with its object below it.
TouchButton {
    id: root

    property string image
    property string detail

    width: parent?.width ?? 0
    implicitHeight: Math.max(Theme.touch, implicitContentHeight + 2 * 4)
    leftPadding: Theme.margin
    rightPadding: Theme.margin
    Accessible.name: detail === "" ? text : text + ", " + detail
    Accessible.onPressAction: clicked()

    contentItem: Item { // qmllint disable deferred-property-id
        implicitHeight: words.implicitHeight

        Column {
            id: words
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width - (icon.visible ? icon.width + Theme.gap : 0)

            Text {
                width: parent.width
                text: root.text
                color: Theme.accentText
                font.pixelSize: Theme.body
                wrapMode: Text.Wrap
            }
            Text {
                width: parent.width
                visible: text !== ""
                text: root.detail
                color: Theme.textSecondary
                font.pixelSize: Theme.small
                wrapMode: Text.Wrap
            }
        }
        Icon {
            id: icon
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            visible: root.image !== ""
            name: root.image
            size: 22
            color: Theme.accentText
        }
    }
}
