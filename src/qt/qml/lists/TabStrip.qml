// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Lumora

// The tabs at the bottom of the home screen.
Rectangle {
    id: root

    required property HomeScreen home

    // Text beside the icon, where the window is low.
    property bool compact: false

    implicitHeight: compact ? Theme.touch : Math.round(56 * Math.max(1, (Theme.barScale + 1) / 2))
    color: Theme.raised
    Accessible.role: Accessible.PageTabList

    Rectangle {
        width: parent.width
        height: 1
        color: Theme.separator
    }
    Row {
        id: row
        anchors.fill: parent

        Repeater {
            model: root.home.tabs

            T.TabButton {
                id: tab

                required property homeTab modelData
                readonly property color ink: checked ? Theme.tabOn : Theme.textSecondary

                objectName: "tab" + modelData.tag
                width: row.width / Math.max(1, root.home.tabs.length)
                height: row.height
                text: modelData.title
                checkable: false
                autoExclusive: false
                checked: modelData.tag === root.home.selectedTab
                focusPolicy: Qt.TabFocus
                Accessible.name: text
                Accessible.selected: checked
                Accessible.onPressAction: clicked()
                onClicked: root.home.selectTab(modelData.tag)
                Keys.onReturnPressed: clicked()
                Keys.onEnterPressed: clicked()

                background: Rectangle {
                    color: tab.down ? Theme.pressed : tab.hovered ? Theme.hover : "transparent"
                    border.width: tab.visualFocus ? 2 : 0
                    border.color: Theme.accentText
                }
                contentItem: Item {
                    Grid {
                        anchors.centerIn: parent
                        columns: root.compact ? 2 : 1
                        rowSpacing: 2
                        columnSpacing: Theme.gap
                        horizontalItemAlignment: Grid.AlignHCenter
                        verticalItemAlignment: Grid.AlignVCenter

                        Icon {
                            name: tab.modelData.image
                            color: tab.ink
                        }
                        Text {
                            width: Math.min(implicitWidth, tab.width - 4 - (root.compact ? 24 + Theme.gap : 0))
                            text: tab.text
                            color: tab.ink
                            font.pixelSize: Math.round(13 * Theme.barScale)
                            fontSizeMode: Text.HorizontalFit
                            minimumPixelSize: 9
                            font.weight: tab.checked ? Font.DemiBold : Font.Normal
                        }
                    }
                }
            }
        }
    }
}
