// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// The header of the section at the top of a list; the next one pushes it out.
Item {
    id: root

    required property ListView list
    required property QtTableView table
    property string title
    // Of its title.
    property int section: -1
    // Stands at the end of the header.
    property Component tools: null

    function update() {
        const position = list.contentY + 1;
        const row = list.indexAt(0, position);
        title = row < 0 || list.contentY <= list.originY ? "" : table.model.sectionTitle(row);
        if (title === "")
            return;
        section = table.model.sectionOf(row);
        const next = table.model.nextHeaderRow(row);
        const item = next < 0 ? null : list.itemAtIndex(next);
        const distance = item ? item.y - list.contentY : height;
        label.y = Math.min(0, distance - height);
    }

    height: tools === null ? Theme.headerHeight : Theme.headingHeight
    clip: true
    visible: title !== ""

    Connections {
        target: root.list
        function onContentYChanged() {
            root.update();
        }
        function onCountChanged() {
            root.update();
        }
    }
    Connections {
        target: root.table.model
        function onReloaded() {
            root.update();
        }
    }
    SectionLabel {
        id: label
        width: parent.width
        height: parent.height
        text: root.title
        room: toolPlace.width

        Loader {
            id: toolPlace

            readonly property int section: root.section

            anchors.right: parent.right
            anchors.rightMargin: root.tools === null ? 0 : Theme.gap
            height: parent.height
            sourceComponent: root.tools
        }
    }
}
