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
    readonly property bool low: height < 460

    function openFirst() {
        if (searching)
            home.openFirst();
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
    ListChips {
        id: chips
        anchors.top: search.bottom
        width: parent.width
        height: visible ? implicitHeight : 0
        // A low window is left to the verbs.
        visible: !root.searching && root.home.selectedTab === 0 && (!root.low || root.home.commonOnly || root.home.irregularOnly)
        home: root.home
        onNarrowed: area.showTop()
    }
    FocusScope {
        id: area
        focus: true
        anchors.top: chips.bottom
        anchors.bottom: tabs.top
        width: parent.width
        clip: true

        function takeKeyboard() {
            const cards = ((found.item as VerbTable)?.list.headerItem ?? null) as ReadingCards;
            if (cards !== null && cards.count > 0)
                cards.takeKeyboard(0);
            else
                forceActiveFocus(Qt.TabFocusReason);
        }

        function showTop() {
            (lists.itemAt(0) as Loader).item.list.positionViewAtBeginning(); // qmllint disable
        }

        // Each list keeps its place once it was there.
        Repeater {
            id: lists
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
                    // Rows made in advance cause warnings when their list gets shorter;
                    // only the list of all verbs never does.
                    list.cacheBuffer: place.index === 0 ? 600 : 0
                }
            }
        }
        Loader {
            id: found
            anchors.fill: parent
            active: root.searching && root.home.searchResults !== null
            focus: active

            sourceComponent: VerbTable {
                id: results

                objectName: "searchResults"
                name: qsTrId("settings.search")
                screen: root.home.searchResults
                openVerb: root.home.openVerb
                list.cacheBuffer: 0

                function showTop() {
                    list.positionViewAtBeginning();
                }

                list.header: ReadingCards {
                    width: ListView.view.width
                    home: root.home
                    onFieldWanted: search.takeKeyboard()
                    // Not while the list makes its rows.
                    onHeightChanged: Qt.callLater(results.showTop) // qmllint disable
                }
                Connections {
                    target: root.home
                    function onSearchChanged() {
                        Qt.callLater(results.showTop); // qmllint disable
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
        compact: root.low
    }
}
