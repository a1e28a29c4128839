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
    property color color: Theme.background
    property color pressedColor: Theme.pressed
    property color hoverColor: Theme.hover
    // Its verb is the one that is open beside the list.
    property bool open: false
    property color separatorColor: Theme.separator
    property color focusColor: Theme.accentText
    property int focusInset: 0
    property Component headerText: plainHeader
    property Component footerText: plainFooter
    default property alias cellContent: holder.data
    readonly property bool isCell: kind === TableItemModel.Cell
    readonly property bool isCurrent: ListView.isCurrentItem && ListView.view !== null && ListView.view.parent.activeFocus
    readonly property bool swiped: swipe.position !== 0

    // The keyboard's way to do what a tap does, and to step through values.
    function activate() {
        table.model.tap(index);
    }
    function adjust(step) {
        return false;
    }

    objectName: identifier
    implicitHeight: isCell ? cellHeight : texts.implicitHeight
    focusPolicy: Qt.NoFocus
    // What begins at the edge pulls the side menu in.
    swipe.enabled: isCell && canEdit && !(pressed && pressX < 20)
    swipe.right: isCell && canEdit ? actions : null
    // A list item by itself; headers and footers have texts that speak.
    Accessible.ignored: !isCell
    Accessible.name: text
    Accessible.selected: selected || open
    Accessible.focusable: isCell
    Accessible.focused: isCurrent
    Accessible.onPressAction: if (isCell)
        activate()
    // Only assistive technology gives a row the keyboard, which is the table's.
    onActiveFocusChanged: if (activeFocus && isCell)
        (ListView.view.parent as TableContent).goTo(index)
    onClicked: {
        if (swiped)
            swipe.close();
        else if (isCell)
            table.model.tap(index);
    }

    onSwipedChanged: if (swiped)
        (ListView.view.parent as TableContent).rowSwiped(root)

    // A pooled row would otherwise stay in the tree that a screen reader sees.
    ListView.onPooled: {
        swipe.close();
        visible = false;
    }
    ListView.onReused: visible = true

    background: Rectangle {
        color: !root.isCell || !root.selectable ? root.color : root.down || root.selected ? root.pressedColor : root.hovered || root.open ? root.hoverColor : root.color

        Rectangle {
            visible: root.open && root.isCell
            width: 4
            height: parent.height
            color: Theme.accentText
        }

        Rectangle {
            visible: root.isCell && root.table !== null && root.table.separators
            anchors.bottom: parent.bottom
            width: parent.width - root.trailingSpace
            height: 1
            color: root.separatorColor
        }
    }
    // Made at once, since what a row shows goes into it.
    contentItem: Item { // qmllint disable deferred-property-id
        Item {
            id: holder
            anchors.fill: parent
            visible: root.isCell
        }
        Loader {
            id: texts
            width: parent.width
            active: !root.isCell
            sourceComponent: root.kind === TableItemModel.Header ? root.headerText : root.footerText
        }
        Loader {
            anchors.fill: parent
            anchors.leftMargin: root.focusInset
            anchors.rightMargin: root.focusInset
            active: root.isCurrent

            sourceComponent: Rectangle {
                color: "transparent"
                radius: root.focusInset > 0 ? Theme.radius : 0
                border.width: 2
                border.color: root.focusColor
            }
        }
    }

    Component {
        id: plainHeader

        SectionLabel {
            implicitHeight: Theme.headerHeight
            text: root.title
        }
    }
    Component {
        id: plainFooter

        Text {
            padding: Theme.gap
            leftPadding: Theme.margin
            rightPadding: Theme.margin
            text: root.title
            color: Theme.textSecondary
            font.pixelSize: Theme.small
            wrapMode: Text.WordWrap
            Accessible.role: Accessible.StaticText
            Accessible.name: text
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
