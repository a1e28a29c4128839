// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// The first screen: the search field, the lists behind their tabs or what was
// found, and the tabs.
ScreenPage {
    id: root

    readonly property HomeScreen home: screen
    readonly property bool searching: home.searchText !== ""

    SearchField {
        id: search
        width: parent.width
        home: root.home
    }
    FocusScope {
        id: area
        focus: true
        anchors.top: search.bottom
        anchors.bottom: tabs.top
        width: parent.width
        clip: true

        Repeater {
            model: root.home.lists

            VerbTable {
                required property TableScreen modelData

                anchors.fill: parent
                screen: modelData
                visible: !root.searching && modelData === root.home.currentList
                focus: visible
            }
        }
        Loader {
            anchors.fill: parent
            active: root.searching && root.home.searchResults !== null
            focus: active

            sourceComponent: VerbTable {
                id: results

                objectName: "searchResults"
                screen: root.home.searchResults

                Text {
                    objectName: "nothingFound"
                    anchors.horizontalCenter: parent.horizontalCenter
                    y: Theme.touch
                    width: Math.min(300, parent.width - 2 * Theme.margin)
                    visible: results.list.count === 0
                    text: qsTrId("search.empty")
                    color: Theme.textSecondary
                    font.pixelSize: Theme.title
                    font.bold: true
                    wrapMode: Text.WordWrap
                    horizontalAlignment: Text.AlignHCenter
                }
                Connections {
                    target: root.home
                    function onSearchChanged() {
                        results.list.positionViewAtBeginning();
                    }
                }
            }
        }
    }
    TabStrip {
        id: tabs
        anchors.bottom: parent.bottom
        width: parent.width
        home: root.home
    }
}
