// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// The ways to share a verb: rising from the bottom of a narrow window, beside
// the bar button on a wide one.
Question {
    id: root

    required property QtShareSheet share
    required property ModalStack modals
    readonly property Item button: share.anchor
    readonly property bool popover: !modals.fullScreen && button !== null
    // The middle of the button's lower edge.
    property point tip

    function place() {
        if (button !== null)
            tip = mapFromItem(button, button.width / 2, button.height);
    }

    heading: share.heading
    shade: popover ? 0.5 : 1
    onDismissed: share.cancel()
    onTappedBeside: share.cancel()
    onButtonChanged: Qt.callLater(place) // qmllint disable
    onWidthChanged: Qt.callLater(place) // qmllint disable
    Component.onCompleted: place()

    Rectangle {
        // Points at the button.
        visible: root.popover
        opacity: root.presence
        x: root.tip.x - width / 2
        y: card.y - height / 2
        width: 16
        height: 16
        rotation: 45
        color: Theme.raised
    }
    Rectangle {
        id: card

        readonly property real highest: root.popover ? root.tip.y + Theme.gap : Theme.margin
        readonly property real restY: root.popover ? highest : root.height - height - Theme.margin

        objectName: "shareSheet"
        width: Math.min(root.width - 2 * Theme.margin, root.popover ? Math.round(340 * Math.max(1, Theme.textScale)) : 440)
        height: Math.min(content.implicitHeight, root.height - Theme.margin - highest)
        x: root.popover ? Math.max(Theme.gap, Math.min(root.tip.x - width / 2, root.width - Theme.gap - width)) : (root.width - width) / 2
        y: restY + (root.popover ? 0 : (1 - root.presence) * (root.height - restY))
        opacity: root.popover ? root.presence : 1
        radius: Theme.sheetRadius
        color: Theme.raised

        MouseArea {
            anchors.fill: parent
            onWheel: wheel => wheel.accepted = true
        }
        ShareOffers {
            id: content
            anchors.fill: parent
            focus: true
            share: root.share
        }
    }
}
