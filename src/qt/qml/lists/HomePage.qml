// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// The first screen: the search field, the lists behind their tabs or what was
// found, and the tabs.
ScreenPage {
    id: root

    readonly property HomeScreen home: screen as HomeScreen
    readonly property bool searching: home.searchText !== ""

    function openFirst() {
        const model = root.home.searchResults?.table.model ?? null;
        if (searching && model !== null)
            model.tap(model.cellAway(-1, 1));
        else
            area.takeKeyboard();
    }

    SearchField {
        id: search
        width: parent.width
        home: root.home
        onListWanted: area.takeKeyboard()
        onAccepted: root.openFirst()
        onEnded: area.forceActiveFocus()
    }
    FocusScope {
        id: area
        focus: true
        anchors.top: search.bottom
        anchors.bottom: tabs.top
        width: parent.width
        clip: true

        function takeKeyboard() {
            forceActiveFocus(Qt.TabFocusReason);
        }

        // Each list keeps its place once it was there.
        Repeater {
            model: 3

            Loader {
                id: place

                required property int index
                readonly property TableScreen list: (root.home.lists[index] ?? null) as TableScreen

                anchors.fill: parent
                active: list !== null
                visible: !root.searching && list === root.home.currentList
                focus: visible

                sourceComponent: VerbTable {
                    name: root.home.titleOfTab(place.index)
                    screen: place.list
                    openVerb: root.home.openVerb
                    // Rows made ahead complain of a list that grows shorter
                    // meanwhile; only that of all verbs never does.
                    list.cacheBuffer: place.index === 0 ? 600 : 0
                }
            }
        }
        Loader {
            anchors.fill: parent
            active: root.searching && root.home.searchResults !== null
            focus: active

            sourceComponent: VerbTable {
                id: results

                objectName: "searchResults"
                name: root.home.searchPlaceholder
                screen: root.home.searchResults
                openVerb: root.home.openVerb
                list.cacheBuffer: 0

                Text {
                    objectName: "nothingFound"
                    anchors.horizontalCenter: parent.horizontalCenter
                    y: Theme.touch
                    width: Math.min(300, parent.width - 2 * Theme.margin)
                    visible: results.list.count === 0
                    text: qsTrId("search.empty")
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
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
        compact: root.height < 460
    }
}
