// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound
import QtQuick
import Lumora

// What the list of all verbs can be narrowed to, above it.
Rectangle {
    id: root

    required property HomeScreen home

    // A chip was switched: other verbs show now.
    signal narrowed

    component Chip: TouchButton {
        id: chip

        checkable: true
        padding: 6
        leftPadding: 14
        rightPadding: 14
        focusColor: Theme.accentText
        Accessible.role: Accessible.CheckBox
        Accessible.checkable: true
        Accessible.checked: checked
        Accessible.onToggleAction: clicked()

        background: Item {
            Rectangle {
                anchors.centerIn: parent
                width: parent.width
                height: Math.max(32, chip.implicitContentHeight + 8)
                radius: height / 2
                color: chip.down ? Theme.pressed : chip.checked ? Theme.accentSecondary : chip.hovered ? Theme.hover : Theme.background
                border.width: chip.visualFocus ? 2 : 1
                border.color: chip.visualFocus ? Theme.accentText : chip.checked ? Theme.accentSecondaryEdge : Theme.textSecondary
            }
        }
        contentItem: Text {
            // Not by colour alone.
            text: chip.checked ? "\u2713 " + chip.text : chip.text
            color: chip.checked && !chip.down ? Theme.accentSecondaryInk : Theme.text
            font.pixelSize: Theme.small + 1
            font.weight: chip.checked ? Font.DemiBold : Font.Normal
            verticalAlignment: Text.AlignVCenter
            horizontalAlignment: Text.AlignHCenter
        }
    }

    implicitHeight: chips.height
    color: Theme.background
    Accessible.role: Accessible.Grouping
    Accessible.name: qsTrId("list.narrow")

    Flow {
        id: chips
        x: Theme.gap + 4
        width: root.width - 2 * x
        spacing: Theme.gap

        Chip {
            objectName: "chipCommon"
            text: qsTrId("list.common")
            checked: root.home.commonOnly
            onClicked: {
                root.home.commonOnly = !root.home.commonOnly;
                checked = Qt.binding(() => root.home.commonOnly);
                root.narrowed();
            }
        }
        Chip {
            objectName: "chipIrregular"
            text: qsTrId("list.irregular")
            checked: root.home.irregularOnly
            onClicked: {
                root.home.irregularOnly = !root.home.irregularOnly;
                checked = Qt.binding(() => root.home.irregularOnly);
                root.narrowed();
            }
        }
    }
}
