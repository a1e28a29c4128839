// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtQuick.Controls.Basic
import Lumora

// One verb: its conjugations by mood, as a table on a narrow screen and as
// squares on a wide one.
ScreenPage {
    id: root

    readonly property VerbDetailScreen verb: screen as VerbDetailScreen

    parts: verb.selectTextHidden ? moods.visible && !verb.moodsHidden ? [tenses, moods] : [tenses] : []
    // Squares of a fixed size need room, and texts that fit into them.
    readonly property bool asSquares: wide && (!verb.selectTextHidden || !Theme.largeText && height >= 560)
    readonly property bool onTop: StackView.view?.currentItem === root

    barMenu: verb.selectTextHidden ? menu : null
    reusable: asSquares
    onReusing: other => (other as VerbDetailScreen).prepareCollection()
    onReused: {
        sheets.forget();
        (tenses.item as TenseGrid)?.start();
    }

    MoodBar {
        id: moods
        width: parent.width
        height: root.verb.toolbarHidden ? 0 : root.verb.toolbarHeight
        visible: height > 0
        screen: root.verb
    }
    Shortcut {
        sequence: "Ctrl+PgDown"
        enabled: root.onTop && root.enabled
        onActivated: root.verb.showNeighbour(1)
    }
    Shortcut {
        sequence: "Ctrl+PgUp"
        enabled: root.onTop && root.enabled
        onActivated: root.verb.showNeighbour(-1)
    }
    VerbSheets {
        id: sheets
        screen: root.verb
        wide: root.wide
        squares: root.asSquares
        onPlaceWanted: (tense, line) => tenses.item.showPlace(tense, line) // qmllint disable
    }
    Loader {
        id: tenses
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
        id: select
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

    Icon {
        anchors.horizontalCenter: select.horizontalCenter
        anchors.bottom: select.top
        anchors.bottomMargin: 2 * Theme.margin
        visible: select.visible && y > moods.y + moods.height
        name: "AboutIcon"
        size: 96
        radius: 20
    }
    Text {
        anchors.horizontalCenter: select.horizontalCenter
        anchors.top: select.bottom
        anchors.topMargin: Theme.margin
        width: Math.min(implicitWidth, root.width - 2 * Theme.margin, 440 * Theme.textScale)
        visible: select.visible
        text: qsTrId("select.hint")
        color: Theme.textSecondary
        font.pixelSize: Theme.body - 1
        wrapMode: Text.WordWrap
        horizontalAlignment: Text.AlignHCenter
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    Component {
        id: menu

        VerbMenuButton {
            screen: root.verb
        }
    }
    Component {
        id: table

        TenseTable {
            screen: root.verb
            withCard: !root.preview && root.verb.selectTextHidden
            onFormAsked: (tense, line) => sheets.askForm(tense, line)
            onTenseAsked: tense => sheets.askTense(tense)
        }
    }
    Component {
        id: squares

        TenseGrid {
            screen: root.verb
            openedTense: root.verb.openedTense
            openedLine: root.verb.openedLine
            card: root.preview || !root.verb.selectTextHidden ? null : wideCard
            onMovedTo: tense => root.verb.topTense = tense
            onFormAsked: (tense, line) => sheets.askForm(tense, line)
            onTenseAsked: tense => sheets.askTense(tense)
            Component.onCompleted: start()
        }
    }
    Component {
        id: wideCard

        VerbCard {
            screen: root.verb
            wide: true
        }
    }
}
