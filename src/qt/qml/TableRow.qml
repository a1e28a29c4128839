// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtQuick.Templates as T
import Lumora

// A row of a table: a header, a footer or a cell with what swiping offers.
// What is put inside shows in cells.
T.SwipeDelegate {
    id: root

    required property int index
    required property int kind
    required property string title
    required property bool selectable
    required property bool canEdit
    required property bool selected
    required property string identifier
    property QtTableView table
    property int cellHeight: Theme.rowHeight
    // Kept free at the right, for the index.
    property int trailingSpace: 0
    default property alias cellContent: holder.data
    readonly property bool isCell: kind === TableItemModel.Cell
    readonly property bool isCurrent: ListView.isCurrentItem && ListView.view !== null && ListView.view.activeFocus

    objectName: identifier
    implicitHeight: isCell ? cellHeight : kind === TableItemModel.Header ? Theme.headerHeight : texts.implicitHeight
    focusPolicy: Qt.NoFocus
    swipe.enabled: isCell && canEdit
    swipe.right: isCell && canEdit ? actions : null
    Accessible.role: isCell ? Accessible.ListItem : Accessible.Heading
    Accessible.name: isCell ? text : title
    onClicked: if (isCell && swipe.position === 0)
        table.model.tap(index)

    ListView.onPooled: swipe.close()

    background: Rectangle {
        color: root.isCell && root.selectable && (root.down || root.selected) ? Theme.pressed : Theme.background

        Rectangle {
            visible: root.isCell && root.table !== null && root.table.separators
            anchors.bottom: parent.bottom
            width: parent.width
            height: 1
            color: Theme.separator
        }
    }
    contentItem: Item {
        Item {
            id: holder
            anchors.fill: parent
            visible: root.isCell
        }
        Loader {
            id: texts
            width: parent.width
            active: !root.isCell
            sourceComponent: root.kind === TableItemModel.Header ? header : footer
        }
        Loader {
            anchors.fill: parent
            active: root.isCurrent

            sourceComponent: Rectangle {
                color: "transparent"
                border.width: 2
                border.color: Theme.accentText
            }
        }
    }

    Component {
        id: header

        SectionLabel {
            height: Theme.headerHeight
            text: root.title
        }
    }
    Component {
        id: footer

        Text {
            padding: Theme.gap
            leftPadding: Theme.margin
            rightPadding: Theme.margin
            text: root.title
            color: Theme.textSecondary
            font.pixelSize: Theme.small
            wrapMode: Text.WordWrap
        }
    }
    Component {
        id: actions

        SwipeActions {
            row: root
            rowIndex: root.index
            rightPadding: root.trailingSpace
            table: root.table
        }
    }
}
