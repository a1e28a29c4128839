// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Templates as T
import Lumora

// Lies over a verb's page and tells of one thing on it: at the bottom of a narrow
// window, in the middle of a wide one. It takes the keyboard and gives it back.
Popup {
    id: root

    required property string heading
    // All of the window.
    required property Item room
    property bool wide: false
    default property alias lines: column.data
    readonly property Item keyboard: flick.Window.activeFocusItem

    function moveFocus(forward) {
        (keyboard ?? flick).nextItemInFocusChain(forward).forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason);
    }

    // What has the keyboard is in sight.
    onKeyboardChanged: {
        if (keyboard?.parent !== column)
            return;
        const below = keyboard.y + keyboard.height - flick.height;
        flick.contentY = Math.min(keyboard.y, Math.max(below, flick.contentY));
    }

    x: Math.round((room.width - width) / 2)
    y: wide ? Math.round((room.height - height) / 2) : room.height - height - Theme.margin
    width: Math.min(room.width - 2 * Theme.margin, Math.round(460 * Math.max(1, Theme.textScale)))
    height: Math.min(column.implicitHeight + topPadding + bottomPadding, room.height - 2 * Theme.margin)
    parent: room
    padding: 0
    topPadding: Theme.margin
    bottomPadding: Theme.gap
    modal: true
    focus: true

    T.Overlay.modal: Rectangle {
        color: Theme.shade
    }
    background: Rectangle {
        radius: Theme.sheetRadius
        color: Theme.raised
        border.width: Theme.dark ? 1 : 0
        border.color: Theme.separator
    }
    contentItem: Flickable { // qmllint disable deferred-property-id
        id: flick
        clip: true
        contentHeight: column.implicitHeight
        boundsBehavior: Flickable.StopAtBounds
        Keys.onDownPressed: root.moveFocus(true)
        Keys.onUpPressed: root.moveFocus(false)
        Accessible.role: Accessible.Dialog
        Accessible.name: root.heading

        Column {
            id: column
            width: flick.width
        }
    }
}
