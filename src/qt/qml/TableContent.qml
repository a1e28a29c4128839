// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtQuick.Controls.Basic
import Lumora

// A table: its rows, the header that stays on top, the index down the edge and
// what stands in an empty one.
Item {
    id: root

    required property QtTableView table
    property alias delegate: list.delegate
    property alias list: list
    readonly property int indexWidth: index.visible ? index.width : 0

    ListView {
        id: list

        property real keptPosition: 0

        anchors.fill: parent
        model: root.table.model
        reuseItems: true
        clip: true
        focus: true
        activeFocusOnTab: true
        keyNavigationEnabled: true
        highlightFollowsCurrentItem: false
        currentIndex: -1
        cacheBuffer: 600
        boundsBehavior: Flickable.StopAtBounds
        maximumFlickVelocity: 6000
        Accessible.role: Accessible.List

        ScrollBar.vertical: ScrollBar {
            visible: !index.visible
        }
        Keys.onReturnPressed: root.table.model.tap(currentIndex)
        Keys.onSpacePressed: root.table.model.tap(currentIndex)

        Connections {
            target: root.table.model
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
        width: parent.width
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
        table: root.table
    }
}
