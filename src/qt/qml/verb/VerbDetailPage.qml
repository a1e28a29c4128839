// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// One verb: its conjugations by mood, as a table on a narrow screen and as
// squares on a wide one.
ScreenPage {
    id: root

    readonly property VerbDetailScreen verb: screen as VerbDetailScreen

    barMenu: verb.selectTextHidden ? menu : null

    MoodBar {
        id: moods
        width: parent.width
        height: root.verb.toolbarHidden ? 0 : root.verb.toolbarHeight
        visible: height > 0
        screen: root.verb
    }
    Loader {
        anchors.top: moods.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        focus: true
        sourceComponent: root.wide ? squares : table
    }
    Rectangle {
        anchors.centerIn: parent
        width: label.width
        height: label.height
        visible: !root.verb.selectTextHidden
        radius: root.verb.selectRadius
        color: Theme.dark ? Theme.raised : root.verb.selectBackground
        border.width: root.verb.selectBorderWidth
        border.color: Theme.dark ? Theme.separator : root.verb.selectBorder

        Text {
            id: label
            width: Math.min(implicitWidth, root.width - 2 * Theme.margin)
            padding: Theme.margin
            text: root.verb.selectText
            color: Theme.textSecondary
            font.pixelSize: Theme.body
            wrapMode: Text.WordWrap
            horizontalAlignment: Text.AlignHCenter
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }

    Component {
        id: menu

        VerbMenuButton {
            screen: root.verb
        }
    }
    Component {
        id: table

        TableContent {
            id: content

            // Of the form that was searched for, below its tense's header.
            readonly property int openedRow: root.verb.openedTense < 0 ? -1 : content.table.model.firstRow(root.verb.openedTense + 1) + 1 + root.verb.openedLine

            table: root.verb.table
            name: root.verb.title
            delegate: ConjugationRow {
                width: ListView.view.width
                table: content.table
                marked: index === content.openedRow
            }
            Component.onCompleted: {
                root.verb.prepare();
                // The first section is not a tense.
                if (root.verb.topTense > 0)
                    list.positionViewAtIndex(content.table.model.firstRow(root.verb.topTense + 1), ListView.Beginning);
                const row = content.openedRow;
                // In sight even where its tense is higher than the page, which has no
                // height yet.
                if (row >= 0)
                    Qt.callLater(content.moveTo, row);
            }

            Connections {
                target: content.list
                function onContentYChanged() {
                    if (content.list.moving)
                        root.verb.topTense = Math.max(0, content.table.model.sectionOf(content.list.indexAt(0, content.list.contentY + Theme.headerHeight)) - 1);
                }
            }
        }
    }
    Component {
        id: squares

        TenseGrid {
            collection: root.verb.collection
            openedTense: root.verb.openedTense
            openedLine: root.verb.openedLine
            onMovedTo: tense => root.verb.topTense = tense
            Component.onCompleted: {
                root.verb.prepareCollection();
                show(root.verb.topTense);
            }
        }
    }
}
