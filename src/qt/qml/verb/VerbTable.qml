// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound
import QtQuick
import Lumora

// The verbs of a list screen.
TableContent {
    id: root

    required property TableScreen screen
    // The verb that is open beside the list; 0 for none.
    property int openVerb: 0
    property int openVerbRow: -1

    function findOpenVerb() {
        openVerbRow = openVerb === 0 ? -1 : screen.rowOfVerb(openVerb);
    }

    onOpenVerbChanged: {
        findOpenVerb();
        // One may have gone on from verb to verb.
        if (openVerbRow >= 0)
            bringIntoSight(openVerbRow);
    }

    table: screen.table
    name: screen.title
    delegate: VerbRow {
        width: ListView.view.width
        table: root.table
        trailingSpace: root.indexWidth
        open: index === root.openVerbRow
    }
    Component.onCompleted: {
        screen.attach(root);
        screen.prepare();
        findOpenVerb();
    }

    Connections {
        target: root.table.model
        function onReloaded() {
            root.findOpenVerb();
        }
        function onRowsRemoved() {
            root.findOpenVerb();
        }
    }
}
