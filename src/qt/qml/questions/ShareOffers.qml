// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls.Basic
import Lumora

// What the share sheet offers, one row each.
FocusScope {
    id: root

    required property QtShareSheet share

    implicitHeight: column.implicitHeight + cancel.implicitHeight + Theme.gap

    Flickable {
        id: flickable
        anchors.top: parent.top
        anchors.bottom: cancel.top
        width: parent.width
        contentHeight: column.implicitHeight
        clip: interactive
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentHeight > height

        ScrollBar.vertical: ScrollBar {
            // It would fade out on a sheet that has just got its height.
            visible: flickable.interactive
            policy: ScrollBar.AlwaysOn
            Accessible.ignored: true
        }

        Column {
            id: column
            width: parent.width
            topPadding: Theme.margin

            SheetHeading {
                width: parent.width
                text: root.share.heading
            }
            Repeater {
                model: root.share.rows

                ShareRow {
                    width: column.width
                    onClicked: root.share.choose(index)
                    // What the keyboard is on stays in sight.
                    onActiveFocusChanged: if (activeFocus)
                        flickable.contentY = Math.max(0, Math.min(y, Math.max(flickable.contentY, y + height - flickable.height)))
                }
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
