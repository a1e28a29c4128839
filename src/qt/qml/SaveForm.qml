// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls.Basic
import Lumora

// Where to save, for desktops without a dialog of their own: a name, and a
// folder that one steps into and out of.
FocusScope {
    id: root

    required property QtShareSheet share
    readonly property SaveLocation location: share.location
    readonly property real fixedHeight: head.height + place.height + foot.height

    implicitHeight: fixedHeight + 5 * Theme.touch
    Component.onCompleted: {
        // Ready to be written over, the ending apart.
        name.forceActiveFocus();
        name.select(0, name.text.lastIndexOf("."));
    }

    Column {
        id: head
        width: parent.width
        topPadding: Theme.margin
        bottomPadding: Theme.gap

        SheetHeading {
            width: parent.width
            text: qsTrId("share.save.as")
        }
        TextField {
            id: name
            objectName: "saveName"
            x: Theme.margin
            width: parent.width - 2 * x
            height: Theme.touch
            text: root.location.name
            color: Theme.text
            selectionColor: Theme.accentPrimary
            selectedTextColor: "white"
            font.pixelSize: Theme.body
            selectByMouse: true
            verticalAlignment: Text.AlignVCenter
            Accessible.name: qsTrId("share.save.name")
            onTextEdited: root.location.name = text
            onAccepted: root.share.saveHere()

            background: Rectangle {
                radius: Theme.radius
                color: Theme.grouped
                border.width: name.activeFocus ? 2 : 1
                border.color: name.activeFocus ? Theme.accentText : Theme.separator
            }
        }
    }
    FolderRow {
        id: place
        objectName: "saveUp"
        anchors.top: head.bottom
        width: parent.width
        text: root.location.folder
        image: "up"
        enabled: root.location.hasParent
        elide: Text.ElideLeft
        Accessible.name: qsTrId("share.save.up") + ", " + text
        onClicked: root.location.goUp()
    }
    ListView {
        id: list
        anchors.top: place.bottom
        anchors.bottom: foot.top
        width: parent.width
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        model: root.location.folders

        ScrollBar.vertical: ScrollBar {}

        delegate: FolderRow {
            required property string modelData

            objectName: "saveInto"
            width: ListView.view.width
            text: modelData
            image: "folder"
            indent: Theme.margin
            onClicked: root.location.enter(modelData)
        }

        Text {
            anchors.centerIn: parent
            visible: list.count === 0
            text: qsTrId("share.save.folder.empty")
            color: Theme.textSecondary
            font.pixelSize: Theme.small + 1
        }
    }
    Row {
        id: foot
        anchors.bottom: parent.bottom
        width: parent.width
        bottomPadding: Theme.gap

        SheetButton {
            objectName: "shareCancel"
            width: parent.width / 2
            text: qsTrId("share.cancel")
            onClicked: root.share.cancel()
        }
        SheetButton {
            objectName: "saveHere"
            width: parent.width / 2
            text: qsTrId("share.save")
            enabled: root.location.acceptable
            onClicked: root.share.saveHere()
        }
    }
}
