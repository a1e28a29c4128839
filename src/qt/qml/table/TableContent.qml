// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Templates as T
import Lumora

// A table: its rows, the header that stays on top, the index down the edge and
// what stands in an empty one. With the keyboard one moves from cell to cell.
T.Control {
    id: root

    required property QtTableView table
    property alias delegate: list.delegate
    property alias list: list
    property bool stickyHeaders: true
    // At the end of the header that stays on top.
    property alias tools: sticky.tools
    // What a screen reader calls the table.
    property string name
    readonly property bool scrolledByHand: list.moving || bar.pressed
    readonly property int indexWidth: index.visible ? index.width : 0
    // The row that is swiped open, if one is.
    property T.SwipeDelegate openRow: null
    // Whether its rows open the menu themselves; else the page that shows the table does.
    property bool hasMenu: true
    // The last row was swiped away; its controller does not know yet.
    property bool emptied: false

    signal menuAsked(int row)

    function rowSwiped(row) {
        if (openRow !== row)
            openRow?.swipe.close();
        openRow = row;
    }
    function moveTo(row) {
        if (row < 0)
            return;
        list.moved = true;
        list.currentIndex = row;
        // At the first or last cell, show the header above or the footer below it too.
        if (table.model.cellAway(row, -1) < 0)
            list.positionViewAtBeginning();
        if (table.model.cellAway(row, 1) < 0)
            list.positionViewAtEnd();
        bringIntoSight(row);
    }
    // Below the header that stays on top.
    function bringIntoSight(row) {
        list.positionViewAtIndex(row, ListView.Contain);
        const item = list.itemAtIndex(row);
        const hidden = stickyHeaders && item !== null ? list.contentY + sticky.height - item.y : 0;
        if (hidden > 0)
            list.contentY = Math.max(list.originY, list.contentY - hidden);
    }
    // The section whose header stays on top at that height; -1 where none does.
    function sectionOnTop(y) {
        return sticky.visible && y >= 0 && y < sticky.height ? sticky.section : -1;
    }
    // What is seen at a point of the table; -1 for nothing.
    function rowSeenAt(point) {
        const section = sectionOnTop(point.y);
        return section < 0 ? list.indexAt(point.x, point.y + list.contentY) : table.model.firstRow(section);
    }
    function move(steps) {
        if (!activeFocus) {
            // From what stands above the rows.
            forceActiveFocus(Qt.TabFocusReason);
            moveTo(table.model.cellAway(-1, 1));
            return;
        }
        moveTo(table.model.cellAway(list.currentIndex, steps));
    }
    function goTo(row) {
        moveTo(row);
        forceActiveFocus(Qt.TabFocusReason);
    }
    function movePage(direction) {
        move(direction * Math.max(1, Math.floor(list.height / Theme.rowHeight) - 1));
    }
    // The menu is made when it is first asked for: most people never do.
    function showMenu(row, point) {
        if (!hasMenu) {
            menuAsked(row);
            return;
        }
        if (menu.status === Loader.Null)
            menu.setSource("qrc:/Lumora/RowMenu.qml", {
                "table": root.table
            });
        (menu.item as RowMenu).openFor(row, root, point);
    }
    function showMenuOfCurrent() {
        const item = list.currentItem;
        if (item !== null)
            showMenu(list.currentIndex, item.mapToItem(root, 2 * Theme.margin, item.height / 2));
    }

    focus: true
    focusPolicy: Qt.TabFocus
    // A control has a role of its own; the list inside speaks for it.
    Accessible.ignored: true
    onVisualFocusChanged: if (visualFocus && list.currentIndex < 0)
        moveTo(table.model.cellAway(Math.max(-1, list.indexAt(0, list.contentY + (stickyHeaders ? Theme.headerHeight : 0)) - 1), 1))

    Keys.onPressed: event => {
        const row = activeFocus ? list.currentItem : null;
        event.accepted = true;
        if (event.key === Qt.Key_Down)
            move(1);
        else if (event.key === Qt.Key_Up)
            move(-1);
        else if (event.key === Qt.Key_PageDown)
            movePage(1);
        else if (event.key === Qt.Key_PageUp)
            movePage(-1);
        else if (event.key === Qt.Key_Home)
            moveTo(table.model.cellAway(-1, 1));
        else if (event.key === Qt.Key_End)
            moveTo(table.model.cellAway(list.count, -1));
        else if (event.key === Qt.Key_Menu || event.key === Qt.Key_F10 && event.modifiers & Qt.ShiftModifier)
            showMenuOfCurrent();
        else if (row !== null && !(event.modifiers & Qt.ControlModifier) && [Qt.Key_Return, Qt.Key_Enter, Qt.Key_Space].includes(event.key))
            row.activate(event.key);
        else if (row !== null && (event.key === Qt.Key_Left || event.key === Qt.Key_Right))
            event.accepted = row.adjust(event.key === Qt.Key_Left ? -1 : 1);
        else
            event.accepted = false;
    }

    ListView {
        id: list

        property real keptPosition: 0
        property bool moved: false

        objectName: "list"
        Accessible.role: Accessible.List
        Accessible.name: root.name
        anchors.fill: parent
        model: root.table.model
        reuseItems: true
        clip: true
        keyNavigationEnabled: false
        highlightFollowsCurrentItem: false
        currentIndex: -1
        cacheBuffer: 600
        boundsBehavior: Flickable.StopAtBounds
        maximumFlickVelocity: 6000
        Component.onCompleted: root.table.list = list
        onMovementStarted: {
            moved = true;
            root.openRow?.swipe.close();
        }

        ScrollBar.vertical: ScrollBar {
            id: bar
            Accessible.ignored: true
            visible: !index.visible
        }

        Connections {
            target: root.table.model
            function onReloaded() {
                root.openRow?.swipe.close();
                root.emptied = false;
            }
            function onRowsRemoved() {
                root.emptied = root.table.model.rowCount() === 0;
            }
            function onAboutToReset() {
                list.keptPosition = list.contentY - list.originY;
            }
            function onResetDone() {
                list.forceLayout();
                list.contentY = list.originY + Math.max(0, Math.min(list.keptPosition, list.contentHeight - list.height));
            }
        }
    }
    StickyHeader {
        id: sticky
        width: parent.width
        visible: root.stickyHeaders && title !== ""
        list: list
        table: root.table
    }
    SectionIndex {
        id: index
        anchors.right: parent.right
        height: parent.height
        list: list
        table: root.table
    }
    EmptyState {
        anchors.centerIn: parent
        maximumWidth: parent.width - 2 * Theme.margin
        visible: table.emptyStateVisible || root.emptied
        table: root.table
    }
    TapHandler {
        acceptedButtons: Qt.RightButton
        // Without this a finger counts as every button, the right one too.
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad | PointerDevice.Stylus
        onTapped: eventPoint => root.showMenu(root.rowSeenAt(eventPoint.position), eventPoint.position)
    }
    Loader {
        id: menu
    }
}
