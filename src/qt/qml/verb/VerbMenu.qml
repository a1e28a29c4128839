// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls.Basic
import Lumora

// What a verb's page offers besides its buttons: whose voice speaks, and whether
// stems and endings are told apart.
Menu {
    id: root

    required property VerbDetailScreen screen

    // Beside a mark, in the narrowest of windows.
    readonly property real widestText: (parent?.Window.width ?? 320) - 2 * margins - 2 * padding - 12 - 16 - 30

    function openBelow(button) {
        popup(button, 0, button.height, itemAt(0));
    }
    function widest() {
        let width = 0;
        for (let i = 0; i < count; ++i)
            width = Math.max(width, itemAt(i).implicitWidth);
        return width;
    }

    component VoiceItem: MenuItem {
        id: item

        required property int voice

        implicitWidth: implicitContentWidth + leftPadding + rightPadding
        implicitHeight: Math.max(Theme.touch, implicitContentHeight + Theme.gap)
        leftPadding: 12
        rightPadding: 16
        arrow: null
        indicator: null
        checkable: true
        checked: root.screen.voice === voice
        Accessible.name: text
        Accessible.onPressAction: triggered()
        Accessible.onToggleAction: triggered()
        onTriggered: {
            // One of the two is on, whatever a second press would make of it.
            checked = Qt.binding(() => root.screen.voice === item.voice);
            root.screen.chooseVoice(item.voice);
        }

        contentItem: Row {
            spacing: 12

            Rectangle {
                anchors.verticalCenter: parent.verticalCenter
                width: 18
                height: 18
                radius: 9
                color: "transparent"
                border.width: 2
                border.color: item.checked ? Theme.accentText : Theme.textSecondary

                Rectangle {
                    anchors.centerIn: parent
                    visible: item.checked
                    width: 10
                    height: 10
                    radius: 5
                    color: Theme.accentText
                }
            }
            Text {
                anchors.verticalCenter: parent.verticalCenter
                text: item.text
                color: Theme.text
                font.pixelSize: Theme.body
                width: Math.min(implicitWidth, root.widestText)
                wrapMode: Text.WordWrap
            }
        }
        background: Rectangle {
            radius: 6
            color: item.down || item.highlighted ? Theme.pressed : "transparent"
        }
    }

    component MarksItem: MenuItem {
        id: marks

        implicitWidth: implicitContentWidth + leftPadding + rightPadding
        implicitHeight: Math.max(Theme.touch, implicitContentHeight + Theme.gap)
        leftPadding: 12
        rightPadding: 16
        arrow: null
        indicator: null
        checkable: true
        checked: root.screen.marksForms
        text: qsTrId("verb.marks")
        Accessible.name: text
        Accessible.onPressAction: triggered()
        Accessible.onToggleAction: triggered()
        onTriggered: {
            root.screen.marksForms = !root.screen.marksForms;
            checked = Qt.binding(() => root.screen.marksForms);
        }

        contentItem: Row {
            spacing: 12

            Rectangle {
                anchors.verticalCenter: parent.verticalCenter
                width: 18
                height: 18
                radius: 4
                color: marks.checked ? Theme.accentText : "transparent"
                border.width: 2
                border.color: marks.checked ? Theme.accentText : Theme.textSecondary

                Text {
                    anchors.centerIn: parent
                    visible: marks.checked
                    text: "\u2713"
                    color: Theme.raised
                    font.pixelSize: 13
                    font.weight: Font.Bold
                    Accessible.ignored: true
                }
            }
            Text {
                anchors.verticalCenter: parent.verticalCenter
                text: marks.text
                color: Theme.text
                font.pixelSize: Theme.body
                width: Math.min(implicitWidth, root.widestText)
                wrapMode: Text.WordWrap
            }
        }
        background: Rectangle {
            radius: 6
            color: marks.down || marks.highlighted ? Theme.pressed : "transparent"
        }
    }

    objectName: "verbMenu"
    margins: Theme.gap
    padding: 6
    implicitWidth: Math.max(180, widest() + 2 * padding)

    background: Rectangle {
        radius: Theme.radius
        color: Theme.raised
        border.width: 1
        border.color: Theme.separator
    }

    VoiceItem {
        objectName: "voice0"
        voice: 0
        text: qsTrId("verb.voice.woman")
    }
    VoiceItem {
        objectName: "voice1"
        voice: 1
        text: qsTrId("verb.voice.man")
    }
    MarksItem {
        objectName: "marks"
    }
}
