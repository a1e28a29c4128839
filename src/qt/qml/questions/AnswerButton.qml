// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// An answer to a question.
TouchButton {
    id: root

    required property int index
    required property questionAnswer modelData

    objectName: "answer" + index
    implicitHeight: Math.max(Theme.touch + 4, implicitContentHeight + topPadding + bottomPadding)
    topPadding: 6
    bottomPadding: 6
    leftPadding: Theme.margin
    rightPadding: Theme.margin
    text: modelData.title
    Accessible.checkable: modelData.chosen
    Accessible.checked: modelData.chosen

    contentItem: Text {
        // As much room on the other side keeps the text in the middle.
        leftPadding: root.modelData.chosen ? 20 + Theme.gap : 0
        rightPadding: leftPadding
        text: root.text
        color: root.modelData.destructive ? Theme.danger : Theme.accentText
        font.pixelSize: Theme.body
        font.weight: root.modelData.cancel ? Font.DemiBold : Font.Normal
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        wrapMode: Text.WordWrap
    }

    Icon {
        anchors.right: parent.right
        anchors.rightMargin: Theme.margin
        anchors.verticalCenter: parent.verticalCenter
        visible: root.modelData.chosen
        name: visible ? "chosen" : ""
        size: 20
        color: Theme.accentText
    }
}
