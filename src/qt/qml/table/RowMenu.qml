// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls.Basic
import Lumora

// What can be done with a row: open it, and what swiping it offers.
Menu {
    id: root

    required property QtTableView table
    property int row: -1
    property var offered: []

    // Nothing opens for a row that offers nothing.
    function openFor(newRow, item, point) {
        row = newRow;
        offered = table.model.trailingActions(row);
        if (offered.length > 0)
            popup(item, point.x, point.y, itemAt(0));
    }
    function widest() {
        let width = 0;
        for (let i = 0; i < count; ++i)
            width = Math.max(width, itemAt(i).implicitWidth);
        return width;
    }

    // Its row may be another one after that.
    readonly property Connections changes: Connections {
        target: root.table.model
        function onReloaded() {
            root.close();
        }
    }

    objectName: "rowMenu"
    margins: Theme.gap
    padding: 6
    implicitWidth: Math.max(180, widest() + 2 * padding)

    background: Rectangle {
        radius: Theme.radius
        color: Theme.raised
        border.width: 1
        border.color: Theme.separator
    }

    RowMenuItem {
        objectName: "menuOpen"
        text: qsTrId("action.open")
        image: "open"
        onTriggered: root.table.model.tap(root.row)
    }
    Instantiator {
        model: root.offered

        delegate: RowMenuItem {
            required property int index
            required property swipeOffer modelData

            objectName: "menuAction" + index
            text: modelData.title
            image: modelData.image
            destructive: modelData.destructive
            onTriggered: root.table.model.triggerAction(root.row, index)
        }
        onObjectAdded: (index, object) => root.insertItem(index + 1, object)
        onObjectRemoved: (index, object) => root.removeItem(object)
    }
}
