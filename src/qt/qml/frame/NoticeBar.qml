// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// Says for a moment that something was done.
Rectangle {
    id: root

    property real presence: 0

    function tell(sentence) {
        label.text = sentence;
        presence = 1;
        rest.restart();
    }

    objectName: "notice"
    width: Math.min(label.implicitWidth, parent.width - 2 * Theme.margin)
    height: label.implicitHeight
    radius: Math.min(height / 2, 22)
    color: Theme.notice
    opacity: presence
    visible: opacity > 0
    Accessible.role: Accessible.AlertMessage
    Accessible.name: label.text

    Behavior on presence {
        NumberAnimation {
            duration: Theme.quick
        }
    }
    Timer {
        id: rest
        interval: 2500
        onTriggered: root.presence = 0
    }
    Text {
        id: label
        width: parent.width
        topPadding: 12
        bottomPadding: 12
        leftPadding: 20
        rightPadding: 20
        color: Theme.noticeText
        font.pixelSize: Theme.small + 2
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
    }
}
