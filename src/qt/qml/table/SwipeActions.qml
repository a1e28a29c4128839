// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Lumora

// The buttons behind a row that is swiped open.
Row {
    id: root

    required property T.SwipeDelegate row
    required property int rowIndex
    required property QtTableView table
    // The row may go while its buttons are in sight, and before them.
    readonly property bool open: row !== null && row.swipe.position !== 0
    property var offered: table.model.trailingActions(rowIndex)
    readonly property int buttonWidth: 96

    // Anew each time: what a row offers changes with what was done.
    onOpenChanged: if (open)
        offered = table.model.trailingActions(rowIndex)

    anchors.right: parent?.right
    // The row slides as far as this is wide, known before the buttons are.
    width: offered.length * buttonWidth + rightPadding
    height: parent?.height ?? 0
    layoutDirection: Qt.RightToLeft

    Repeater {
        model: root.offered

        Rectangle {
            id: button

            required property int index
            required property swipeOffer modelData
            readonly property color shade: modelData.background.valid ? modelData.background : modelData.destructive ? Theme.rowDeletion : Theme.rowAction
            readonly property color ink: 0.299 * shade.r + 0.587 * shade.g + 0.114 * shade.b > 0.48 ? Theme.accentSecondaryInk : Theme.barText

            function trigger() {
                const model = root.table.model;
                root.row.swipe.close();
                model.triggerAction(root.rowIndex, index);
            }

            objectName: "swipeAction" + index
            width: root.buttonWidth
            height: root.height
            color: T.SwipeDelegate.pressed ? Qt.darker(shade, 1.15) : shade
            Accessible.role: Accessible.Button
            Accessible.name: modelData.title
            Accessible.onPressAction: trigger()
            T.SwipeDelegate.onClicked: trigger()

            Column {
                anchors.centerIn: parent
                spacing: 2

                Icon {
                    anchors.horizontalCenter: parent.horizontalCenter
                    name: button.modelData.image
                    color: button.ink
                    size: 22
                }
                Text {
                    anchors.horizontalCenter: parent.horizontalCenter
                    width: Math.min(implicitWidth, root.buttonWidth - Theme.gap)
                    text: button.modelData.title
                    color: button.ink
                    font.pixelSize: Theme.small
                    fontSizeMode: Text.HorizontalFit
                    minimumPixelSize: 9
                }
            }
        }
    }
}
