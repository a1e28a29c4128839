// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// What a learner wants to know of a verb, under its name: at a glance, and line
// by line once it is opened. Beside it the ways to its neighbours in the list.
Item {
    id: root

    required property VerbDetailScreen screen
    // Beside another pane there is room for all of it.
    property bool wide: false
    property bool open: screen.isCardOpen(wide)
    // Read once: the database is asked for it.
    readonly property string summary: screen.summary
    readonly property bool anywhere: screen.previousVerb !== "" || screen.nextVerb !== ""

    // It has the keyboard or was opened: the page scrolls to its top.
    signal focused
    // The keyboard moves on to what is below the card.
    signal passed

    function flip() {
        // Its new lines appear below: show the card from its top.
        focused();
        open = !open;
        screen.keepCardOpen(open);
    }

    onScreenChanged: open = screen.isCardOpen(wide)
    width: parent?.width ?? 0
    implicitHeight: column.height + Theme.gap
    onActiveFocusChanged: if (activeFocus)
        focused()
    Keys.onDownPressed: passed()

    Column {
        id: column
        width: parent.width

        Row {
            width: parent.width

            NeighbourButton {
                id: previous
                objectName: "previousVerb"
                visible: root.anywhere
                verb: root.screen.previousVerb
                roomy: root.wide
                onClicked: root.screen.showNeighbour(-1)
            }
            TouchButton {
                objectName: "verbCard"
                width: parent.width - (root.anywhere ? previous.width + next.width : 0)
                leftPadding: root.anywhere ? Theme.gap : root.wide ? 0 : Theme.margin
                rightPadding: Theme.gap
                topPadding: 6
                bottomPadding: 6
                text: root.summary === "" ? qsTrId("card.about") : root.summary
                checkable: true
                checked: root.open
                Accessible.name: root.summary === "" ? text : qsTrId("card.about") + ": " + text
                Accessible.onToggleAction: root.flip()
                onClicked: root.flip()

                contentItem: Item { // qmllint disable deferred-property-id
                    implicitHeight: words.implicitHeight

                    Text {
                        id: words
                        width: parent.width - arrow.width - Theme.gap
                        height: parent.height
                        text: (parent.parent as TouchButton)?.text ?? ""
                        color: Theme.textSecondary
                        font.pixelSize: Theme.small + 1
                        wrapMode: Text.WordWrap
                        horizontalAlignment: root.anywhere ? Text.AlignHCenter : Text.AlignLeft
                        verticalAlignment: Text.AlignVCenter
                    }
                    Icon {
                        id: arrow
                        anchors.right: parent.right
                        anchors.verticalCenter: parent.verticalCenter
                        name: "disclosure"
                        size: 18
                        color: Theme.textSecondary
                        rotation: root.open ? -90 : 90
                    }
                }
            }
            NeighbourButton {
                id: next
                objectName: "nextVerb"
                visible: root.anywhere
                verb: root.screen.nextVerb
                forward: true
                roomy: root.wide
                onClicked: root.screen.showNeighbour(1)
            }
        }
        Loader {
            width: parent.width
            active: root.open
            visible: active

            sourceComponent: Column {
                id: lines

                readonly property var card: root.screen.card
                // Lines that another verb does not need stay, out of sight.
                property int most: 0

                spacing: 6
                onCardChanged: most = Math.max(most, card.length)

                Repeater {
                    model: lines.most

                    VerbCardLine {
                        required property int index

                        readonly property bool used: index < lines.card.length

                        visible: used
                        line: lines.card[used ? index : 0]
                        width: lines.width
                        wide: root.wide
                        onFollowed: id => root.screen.showRelated(id)
                    }
                }
            }
        }
    }
}
