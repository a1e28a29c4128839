// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtQuick.Templates as T
import Lumora

// A switch that shows what it is told and asks for changes.
T.Switch {
    id: root

    required property string label
    property bool on: false

    signal changed(bool on)

    objectName: "switch"
    implicitWidth: 52
    implicitHeight: 44
    padding: 0
    focusPolicy: Qt.NoFocus
    checked: on
    Accessible.name: label
    // Left to itself the toolkit would only change what is drawn.
    Accessible.onPressAction: changed(!on)
    Accessible.onToggleAction: changed(!on)
    onToggled: {
        changed(checked);
        checked = Qt.binding(() => on);
    }

    indicator: Rectangle {
        y: (root.height - height) / 2
        width: root.width
        height: 32
        radius: height / 2
        color: root.checked ? Theme.switchOn : Theme.switchOff

        Rectangle {
            // The width of what is drawn comes later, and would be seen as a slide.
            x: 3 + root.visualPosition * (root.implicitWidth - width - 6)
            y: 3
            width: 26
            height: 26
            radius: 13
            color: "#ffffff"

            Behavior on x {
                enabled: !root.down
                NumberAnimation {
                    duration: Theme.quick
                }
            }
        }
        Behavior on color {
            ColorAnimation {
                duration: Theme.quick
            }
        }
    }
}
