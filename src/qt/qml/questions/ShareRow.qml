// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// One way to share, with the reason below it where it cannot be chosen.
TouchButton {
    id: root

    required property int index
    required property shareOffer modelData
    readonly property color ink: enabled ? Theme.text : Theme.textSecondary

    objectName: "share" + index
    implicitHeight: Math.max(Theme.touch + 4, implicitContentHeight + 2 * Theme.gap)
    leftPadding: Theme.margin
    rightPadding: Theme.margin
    text: modelData.title
    enabled: modelData.enabled
    Accessible.name: modelData.detail === "" ? text : text + ". " + modelData.detail

    contentItem: Row {
        spacing: Theme.margin

        Icon {
            anchors.verticalCenter: parent.verticalCenter
            name: root.modelData.image
            color: root.enabled ? Theme.accentText : Theme.textSecondary
        }
        Column {
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width - x

            Text {
                width: parent.width
                text: root.text
                color: root.ink
                font.pixelSize: Theme.body
                wrapMode: Text.Wrap
            }
            Text {
                width: parent.width
                visible: text !== ""
                text: root.modelData.detail
                color: Theme.textSecondary
                font.pixelSize: Theme.small
                wrapMode: Text.Wrap
            }
        }
    }
}
