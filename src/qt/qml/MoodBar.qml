// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Lumora

// The moods as segments, of which one is chosen.
Rectangle {
    id: root

    required property VerbDetailScreen screen

    color: Theme.header

    Rectangle {
        anchors.fill: parent
        anchors.margins: 6
        anchors.leftMargin: Theme.gap
        anchors.rightMargin: Theme.gap
        visible: !root.screen.moodsHidden
        radius: 8
        color: Theme.segment

        Row {
            id: row
            anchors.fill: parent

            Repeater {
                model: root.screen.moods

                T.AbstractButton {
                    id: segment

                    required property int index
                    required property string modelData

                    objectName: "mood" + index
                    width: row.width / Math.max(1, root.screen.moods.length)
                    height: row.height
                    text: modelData
                    checked: index === root.screen.selectedMood
                    focusPolicy: Qt.TabFocus
                    Accessible.role: Accessible.RadioButton
                    Accessible.name: text
                    Accessible.checked: checked
                    onClicked: root.screen.selectMood(index)

                    background: Rectangle {
                        radius: 8
                        color: segment.checked ? Theme.accentSecondary : segment.down ? Theme.pressed : "transparent"
                        border.width: segment.visualFocus ? 2 : 0
                        border.color: Theme.accentText
                    }
                    contentItem: Text {
                        leftPadding: 2
                        rightPadding: 2
                        text: segment.text
                        color: segment.checked ? Theme.accentSecondaryInk : Theme.text
                        font.pixelSize: Theme.small + 1
                        font.weight: segment.checked ? Font.DemiBold : Font.Normal
                        fontSizeMode: Text.HorizontalFit
                        minimumPixelSize: 9
                        horizontalAlignment: Text.AlignHCenter
                        verticalAlignment: Text.AlignVCenter
                    }
                }
            }
        }
    }
}
