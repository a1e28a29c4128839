// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtQuick.Controls.Basic
import Lumora

// A button of the bar above a screen: an image, a title or both.
TouchButton {
    id: root

    property string image
    // The tooltip of a button without text.
    property string tip: text

    pressedColor: "#33ffffff"
    hoverColor: "#1affffff"
    focusColor: Theme.navigationBarTint
    leftPadding: Theme.gap
    rightPadding: Theme.gap
    ToolTip.visible: enabled && (hovered || visualFocus) && image !== "" && tip !== ""
    ToolTip.delay: Theme.tipDelay
    ToolTip.timeout: Theme.tipTime
    ToolTip.text: tip

    contentItem: Item {
        implicitWidth: children[0]?.implicitWidth ?? 0
        implicitHeight: children[0]?.implicitHeight ?? 0

        Row {
            anchors.centerIn: parent
            spacing: 4

            Icon {
                anchors.verticalCenter: parent.verticalCenter
                visible: name !== ""
                name: root.image
                color: root.enabled ? Theme.navigationBarTint : Theme.barTextDisabled
            }
            Text {
                anchors.verticalCenter: parent.verticalCenter
                visible: text !== "" && root.image === ""
                text: root.text
                color: root.enabled ? Theme.navigationBarTint : Theme.barTextDisabled
                font.pixelSize: Math.round(17 * Theme.barScale)
            }
        }
    }
}
