// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound
import QtQuick
import Lumora

// What the share sheet offers, one row each.
FocusScope {
    id: root

    required property QtShareSheet share

    implicitHeight: list.contentHeight + cancel.implicitHeight + Theme.gap

    ChoiceList {
        id: list
        anchors.top: parent.top
        anchors.bottom: cancel.top
        width: parent.width
        topPadding: Theme.margin

        SheetHeading {
            width: parent.width
            text: root.share.heading
        }
        Repeater {
            model: root.share.rows

            ShareRow {
                id: row
                width: list.width
                onClicked: root.share.choose(index)
                onActiveFocusChanged: if (activeFocus)
                    list.keepInSight(row)
            }
        }
    }
    SheetButton {
        id: cancel
        objectName: "shareCancel"
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.gap
        width: parent.width
        text: qsTrId("export.cancel")
        onClicked: root.share.cancel()
    }
}
