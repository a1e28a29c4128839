// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// A verb's tenses one below the other, under its card. A finger that moves
// aside goes from mood to mood.
TableContent {
    id: root

    required property VerbDetailScreen screen
    property bool withCard: true
    property real beginning: 0
    // The row of the form that was searched for.
    readonly property int openedRow: screen.openedTense < 0 ? -1 : table.model.firstRow(screen.openedTense + 1) + 1 + screen.openedLine

    // A form was held, or chosen with the keyboard.
    signal formAsked(int tense, int line)
    signal tenseAsked(int tense)

    // The first section is not a tense.
    function tenseOf(row) {
        return table.model.sectionOf(row) - 1;
    }
    function lineOf(row) {
        return row - table.model.firstRow(tenseOf(row) + 1) - 1;
    }
    function ask(row) {
        if (row < 0 || tenseOf(row) < 0)
            return;
        if (lineOf(row) >= 0)
            formAsked(tenseOf(row), lineOf(row));
        else
            tenseAsked(tenseOf(row));
    }
    // Not when the person has scrolled, or the page opened at a form.
    function showCard() {
        if (!list.moved && screen.topTense === 0 && openedRow < 0)
            list.positionViewAtBeginning();
    }
    // A screen reader reads the rows in the order in which they were made: from the top.
    function showOpened() {
        list.positionViewAtBeginning();
        list.forceLayout();
        moveTo(openedRow);
    }
    // At a point of the window.
    function rowAt(point) {
        return rowSeenAt(mapFromItem(null, point));
    }
    function showPlace(tense, line) {
        forceActiveFocus(Qt.OtherFocusReason);
        moveTo(table.model.firstRow(tense + 1) + 1 + line);
    }

    table: screen.table
    name: screen.title
    hasMenu: false
    onMenuAsked: row => root.ask(row)
    list.header: withCard ? card : null
    delegate: ConjugationRow {
        width: ListView.view.width
        table: root.table
        screen: root.screen
        fits: tenseFits
        opened: index === root.openedRow
        onAsked: root.ask(index)
    }
    tools: PlayControl {
        readonly property int section: parent.section // qmllint disable

        implicitWidth: Theme.playWidth
        visible: section > 0 && root.screen.selectedMood >= 0 && root.screen.formsOf(section - 1).length > 0
        ofTense: true
        focusPolicy: Qt.NoFocus
        // That of the heading below it speaks for both.
        Accessible.ignored: true
        onClicked: root.screen.playTense(section - 1)
    }
    Component.onCompleted: {
        screen.prepare();
        if (screen.topTense > 0)
            list.positionViewAtIndex(table.model.firstRow(screen.topTense + 1), ListView.Beginning);
        else
            list.positionViewAtBeginning();
        // In sight even where its tense is higher than the page, which has no
        // height yet.
        if (root.openedRow >= 0)
            Qt.callLater(root.showOpened); // qmllint disable
    }
    transform: Translate {
        x: swipe.active ? Math.max(-60, Math.min(60, swipe.activeTranslation.x * 0.4)) : 0

        Behavior on x {
            enabled: !swipe.active
            NumberAnimation {
                duration: Theme.quick
                easing.type: Easing.OutCubic
            }
        }
    }

    TenseFits {
        id: tenseFits
        screen: root.screen
        fullSize: Theme.body + 1
        room: root.width - Theme.margin - Theme.playWidth - 2 * Theme.gap
    }
    Connections {
        target: root.table.model
        function onReloaded() {
            ++tenseFits.revision;
        }
    }
    Component {
        id: card

        VerbCard {
            screen: root.screen
            // Its height is known only after the first layout.
            onHeightChanged: Qt.callLater(root.showCard) // qmllint disable
            onFocused: root.list.positionViewAtBeginning()
            onPassed: root.forceActiveFocus(Qt.TabFocusReason)
        }
    }
    Connections {
        target: root.list
        // The verb's card, above the first row, may grow.
        function onOriginYChanged() {
            if (root.list.contentY === root.beginning)
                root.list.contentY = root.list.originY;
            root.beginning = root.list.originY;
        }
        function onCurrentIndexChanged() {
            if (root.activeFocus && root.list.currentIndex >= 0)
                root.screen.topTense = Math.max(0, root.tenseOf(root.list.currentIndex));
        }
        function onContentYChanged() {
            if (root.scrolledByHand)
                root.screen.topTense = Math.max(0, root.tenseOf(root.list.indexAt(0, root.list.contentY + Theme.headerHeight)));
        }
    }
    TapHandler {
        parent: root.list
        onLongPressed: {
            const row = root.rowAt(point.scenePosition);
            if (row >= 0 && root.lineOf(row) >= 0)
                root.ask(row);
        }
        onTapped: eventPoint => {
            const row = root.rowAt(eventPoint.scenePosition);
            // Right of a heading is its control.
            if (row >= 0 && root.lineOf(row) < 0 && eventPoint.position.x < root.width - Theme.playWidth - Theme.gap)
                root.ask(row);
        }
    }
    DragHandler {
        id: swipe

        // Farther than a scrolling finger moves sideways, in pixels.
        readonly property int far: 70
        property real reached: 0

        parent: root.list
        target: null
        yAxis.enabled: false
        onActiveTranslationChanged: if (active)
            reached = activeTranslation.x
        onActiveChanged: {
            if (active) {
                reached = 0;
                return;
            }
            const mood = root.screen.selectedMood + (reached < 0 ? 1 : -1);
            if (Math.abs(reached) > far && mood >= 0 && mood < root.screen.moods.length)
                root.screen.selectMood(mood);
        }
    }
}
