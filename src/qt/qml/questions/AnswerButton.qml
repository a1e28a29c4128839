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

    contentItem: Text {
        text: root.text
        color: root.modelData.destructive ? Theme.danger : Theme.accentText
        font.pixelSize: Theme.body
        font.weight: root.modelData.cancel ? Font.DemiBold : Font.Normal
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        wrapMode: Text.WordWrap
    }
}
