// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls.Basic
import Lumora

// Which file: a folder that one steps into and out of, with its files where one
// is opened, and a name where one is saved.
FocusScope {
    id: root

    required property QtFileChooser chooser
    readonly property FileLocation location: chooser.location
    readonly property var files: chooser.saving ? [] : location.files
    readonly property int fixedHeight: head.height + place.height + nothing.height + foot.height

    implicitHeight: fixedHeight + 5 * Theme.touch
    Component.onCompleted: {
        if (!chooser.saving) {
            list.forceActiveFocus(Qt.TabFocusReason);
            return;
        }
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
            text: root.chooser.saving ? qsTrId("share.save.as") : root.chooser.title
        }
        TextField {
            id: name
            objectName: "fileName"
            x: Theme.margin
            visible: root.chooser.saving
            width: parent.width - 2 * x
            height: Math.max(Theme.touch, implicitHeight)
            text: root.location.name
            color: Theme.text
            selectionColor: Theme.accentPrimary
            selectedTextColor: "white"
            font.pixelSize: Theme.body
            selectByMouse: true
            verticalAlignment: Text.AlignVCenter
            Accessible.name: qsTrId("share.save.name")
            onTextEdited: root.location.name = text
            onAccepted: root.chooser.acceptLocation()

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
        objectName: "folderUp"
        anchors.top: head.bottom
        width: parent.width
        text: root.location.folder
        image: "up"
        enabled: root.location.hasParent
        elide: Text.ElideLeft
        Accessible.name: qsTrId("share.save.up") + ", " + text
        onClicked: root.location.goUp()
    }
    Text {
        id: nothing

        readonly property bool wanted: (root.chooser.saving ? root.location.folders : root.files).length === 0

        anchors.top: place.bottom
        width: parent.width
        topPadding: Theme.gap
        bottomPadding: Theme.gap
        leftPadding: 2 * Theme.margin
        rightPadding: Theme.margin
        visible: wanted
        text: root.chooser.saving ? qsTrId("share.save.folder.empty") : qsTrId("file.none")
        color: Theme.textSecondary
        font.pixelSize: Theme.small + 1
        wrapMode: Text.WordWrap
        verticalAlignment: Text.AlignVCenter
    }
    ListView {
        id: list

        function pick() {
            if (currentIndex < root.files.length)
                root.chooser.acceptFile(model[currentIndex]);
            else if (currentIndex < count)
                root.location.enter(model[currentIndex]);
        }

        objectName: "files"
        anchors.top: nothing.wanted ? nothing.bottom : place.bottom
        anchors.bottom: foot.top
        width: parent.width
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        activeFocusOnTab: true
        highlightMoveDuration: 0
        // The files, which are what is looked for, before the folders.
        model: root.files.concat(root.location.folders)
        Accessible.role: Accessible.List
        Accessible.name: root.location.folder

        ScrollBar.vertical: ScrollBar {
            Accessible.ignored: true
        }

        delegate: FolderRow {
            required property int index
            required property string modelData
            readonly property bool isFile: index < root.files.length

            objectName: isFile ? "file" : "folder"
            width: ListView.view.width
            focusPolicy: Qt.NoFocus
            marked: ListView.isCurrentItem && list.activeFocus
            text: modelData
            image: isFile ? "open" : "folder"
            indent: Theme.margin
            Accessible.role: Accessible.ListItem
            onClicked: {
                list.currentIndex = index;
                // Not while a row that goes with it is at work.
                Qt.callLater(list.pick); // qmllint disable
            }
        }
    }
    Row {
        id: foot
        anchors.bottom: parent.bottom
        width: parent.width
        bottomPadding: Theme.gap

        SheetButton {
            objectName: "fileCancel"
            width: root.chooser.saving ? parent.width / 2 : parent.width
            text: qsTrId("export.cancel")
            onClicked: root.chooser.dismiss()
        }
        SheetButton {
            objectName: "fileSave"
            visible: root.chooser.saving
            width: parent.width / 2
            text: qsTrId("share.save")
            enabled: root.location.acceptable
            onClicked: root.chooser.acceptLocation()
        }
    }
}
