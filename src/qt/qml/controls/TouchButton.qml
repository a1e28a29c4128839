// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtQuick.Templates as T
import Lumora

// A flat button of at least a finger's size that shows when it is pressed.
T.AbstractButton {
    id: root

    property color pressedColor: Theme.pressed
    property color hoverColor: Theme.hover
    property color focusColor: Theme.accentText
    // Shows that the keyboard is here though a list holds it.
    property bool marked: false

    implicitWidth: Math.max(Theme.touch, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(Theme.touch, implicitContentHeight + topPadding + bottomPadding)
    focusPolicy: Qt.TabFocus
    Accessible.name: text
    Accessible.onPressAction: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    background: Rectangle {
        radius: Theme.radius
        color: root.down ? root.pressedColor : root.hovered ? root.hoverColor : "transparent"
        border.width: root.visualFocus || root.marked ? 2 : 0
        border.color: root.focusColor
    }
}
