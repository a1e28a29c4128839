// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound
import QtQuick
import Lumora

// The keys and what they do.
Question {
    id: root

    required property Main window
    readonly property string ctrl: qsTrId("keys.ctrl") + "+"
    readonly property string enter: qsTrId("keys.enter")
    readonly property var rows: [
        [ctrl + "F", qsTrId("keys.find")],
        [ctrl + "1, 2, 3", qsTrId("tabs.list") + ", " + qsTrId("tabs.favourites") + ", " + qsTrId("tabs.history")],
        [enter, qsTrId("keys.open")],
        [qsTrId("keys.space"), qsTrId("action.play")],
        [ctrl + qsTrId("keys.space"), qsTrId("action.play.tense")],
        [qsTrId("keys.escape"), qsTrId("keys.stop")],
        [ctrl + qsTrId("keys.page_up"), qsTrId("card.previous")],
        [ctrl + qsTrId("keys.page_down"), qsTrId("card.next")],
        ["← →", qsTrId("keys.value")],
        [qsTrId("keys.shift") + "+F10", qsTrId("keys.row")],
        ["F6", qsTrId("keys.part")],
        ["F10", qsTrId("button.menu")],
        [ctrl + ",", qsTrId("settings")],
        [qsTrId("keys.escape") + ", Alt+←", qsTrId("navigation.back")],
        [ctrl + "Q", qsTrId("keys.quit")],
        ["F1", qsTrId("keys.title")]
    ]

    heading: qsTrId("keys.title")
    onDismissed: window.keysShown = false
    onTappedBeside: dismissed()
    onConfirmed: dismissed()

    Rectangle {
        objectName: "keyHelp"
        anchors.centerIn: parent
        width: Math.min(root.width - 2 * Theme.margin, Math.round(440 * Theme.textScale))
        height: Math.min(root.height - 2 * Theme.margin, list.contentHeight + done.height)
        opacity: root.presence
        radius: Theme.sheetRadius
        color: Theme.raised

        MouseArea {
            anchors.fill: parent
        }
        ChoiceList {
            id: list
            anchors.top: parent.top
            anchors.bottom: done.top
            width: parent.width
            topPadding: Theme.margin
            bottomPadding: Theme.gap
            // Its rows break into lines only when they have their width.
            onContentHeightChanged: contentY = 0

            SheetHeading {
                width: parent.width
                text: root.heading
            }
            Repeater {
                model: root.rows

                Item {
                    id: row

                    required property var modelData

                    width: list.width
                    implicitHeight: Math.max(keys.implicitHeight, meaning.implicitHeight) + Theme.gap
                    Accessible.role: Accessible.StaticText
                    Accessible.name: modelData.join(": ")

                    Text {
                        id: keys
                        x: Theme.margin
                        width: Math.round(parent.width * 0.34) - x
                        text: row.modelData[0]
                        color: Theme.accentText
                        font.pixelSize: Theme.body - 1
                        font.weight: Font.DemiBold
                        wrapMode: Text.WordWrap
                    }
                    Text {
                        id: meaning
                        x: keys.x + keys.width + Theme.gap
                        width: parent.width - x - Theme.margin
                        text: row.modelData[1]
                        color: Theme.text
                        font.pixelSize: Theme.body - 1
                        wrapMode: Text.WordWrap
                    }
                }
            }
        }
        SheetButton {
            id: done
            objectName: "keysDone"
            anchors.bottom: parent.bottom
            width: parent.width
            text: qsTrId("common.done")
            onClicked: root.dismissed()
        }
    }
}
