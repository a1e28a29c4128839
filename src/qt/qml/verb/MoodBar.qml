// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// The moods as segments, of which one is chosen.
FocusScope {
    id: root

    required property VerbDetailScreen screen

    onActiveFocusChanged: if (activeFocus)
        moods.takeKeyboard()

    Rectangle {
        anchors.fill: parent
        color: Theme.header
    }
    SegmentedControl {
        id: moods
        anchors.fill: parent
        anchors.leftMargin: Theme.gap
        anchors.rightMargin: Theme.gap
        visible: !root.screen.moodsHidden
        padding: 2
        inset: 6
        name: qsTrId("verb.moods")
        prefix: "mood"
        inTabOrder: true
        chosenColor: Theme.accentSecondary
        chosenEdge: Theme.accentSecondaryEdge
        chosenInk: Theme.accentSecondaryInk
        titles: root.screen.moods
        selected: root.screen.selectedMood
        onChosen: segment => root.screen.selectMood(segment)
    }
}
