// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// One verb: its conjugations by mood, as a table on a narrow screen and as
// squares on a wide one.
ScreenPage {
    id: root

    readonly property VerbDetailScreen verb: screen as VerbDetailScreen

    // Squares of a fixed size need room, and texts that fit into them.
    readonly property bool asSquares: wide && (!verb.selectTextHidden || !Theme.largeText && height >= 560)

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
        anchors.bottomMargin: speech.height
        width: parent.width
        focus: true
        sourceComponent: root.asSquares ? squares : table
    }
    SpeechBar {
        id: speech
        anchors.bottom: parent.bottom
        width: parent.width
        screen: root.verb
    }
    Shortcut {
        sequences: [StandardKey.Cancel] // qmllint disable unqualified
        enabled: root.visible && root.enabled && root.verb.spokenText !== ""
        onActivated: root.verb.stopSpeaking()
    }
    Shortcut {
        sequence: "Ctrl+Space"
        enabled: root.visible && root.enabled && root.verb.selectTextHidden
        onActivated: root.verb.playTense(root.verb.topTense)
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

            table: root.verb.table
            name: root.verb.title
            delegate: ConjugationRow {
                width: ListView.view.width
                table: content.table
                screen: root.verb
                fits: tenseFits
            }
            tools: PlayControl {
                readonly property int section: parent.section // qmllint disable

                implicitWidth: 50
                ofTense: true
                focusPolicy: Qt.NoFocus
                // That of the heading below it speaks for both.
                Accessible.ignored: true
                onClicked: root.verb.playTense(section - 1)
            }
            Component.onCompleted: {
                root.verb.prepare();
                // The first section is not a tense.
                if (root.verb.topTense > 0)
                    list.positionViewAtIndex(content.table.model.firstRow(root.verb.topTense + 1), ListView.Beginning);
            }

            TenseFits {
                id: tenseFits
                screen: root.verb
                fullSize: Theme.body + 1
                room: content.width - Theme.margin - 50 - 2 * Theme.gap
            }
            Connections {
                target: content.table.model
                function onReloaded() {
                    ++tenseFits.revision;
                }
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
            screen: root.verb
            onMovedTo: tense => root.verb.topTense = tense
            Component.onCompleted: {
                root.verb.prepareCollection();
                show(root.verb.topTense);
            }
        }
    }
}
