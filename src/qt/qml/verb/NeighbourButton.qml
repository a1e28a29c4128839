// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtQuick.Controls.Basic
import Lumora

// Leads to the verb before or after this one in the list that it was opened
// from. Where there is room it says to which.
TouchButton {
    id: root

    required property string verb
    property bool forward: false
    property bool roomy: false
    readonly property int most: 150

    enabled: verb !== ""
    text: (forward ? qsTrId("card.next") : qsTrId("card.previous")) + (verb === "" ? "" : qsTrId("text.colon") + verb)
    leftPadding: 10
    rightPadding: 10
    Accessible.onPressAction: clicked()
    ToolTip.visible: enabled && (hovered || visualFocus)
    ToolTip.delay: Theme.tipDelay
    ToolTip.timeout: Theme.tipTime
    ToolTip.text: text

    contentItem: Row {
        layoutDirection: root.forward ? Qt.RightToLeft : Qt.LeftToRight
        spacing: 4

        Icon {
            anchors.verticalCenter: parent.verticalCenter
            name: root.forward ? "disclosure" : "back"
            size: root.forward ? 24 : 20
            color: root.enabled ? Theme.accentText : Theme.separator
        }
        Text {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.roomy && root.verb !== "" && implicitWidth < root.most
            text: root.verb
            color: Theme.accentText
            font.pixelSize: Theme.small + 1
        }
    }
}
