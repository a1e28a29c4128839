// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound
import QtQuick
import Lumora

// A verb on a raised card over everything, and below it what its row offers. A
// tap on the card opens the verb, a tap beside it lets it go.
FocusScope {
    id: root

    required property QtPreview preview
    readonly property real share: 0.85
    property real presence: 0

    Accessible.role: Accessible.Dialog
    Accessible.name: preview.screen?.title ?? ""
    Keys.onEscapePressed: preview.close()
    Keys.onBackPressed: preview.close()
    Keys.onReturnPressed: preview.open()
    Keys.onEnterPressed: preview.open()
    Component.onCompleted: {
        forceActiveFocus();
        presence = 1;
    }

    Behavior on presence {
        NumberAnimation {
            duration: Theme.quick
            easing.type: Easing.OutCubic
        }
    }
    Rectangle {
        anchors.fill: parent
        color: Theme.shade
        opacity: root.presence

        MouseArea {
            anchors.fill: parent
            onClicked: root.preview.close()
            onWheel: wheel => wheel.accepted = true
        }
    }
    Column {
        anchors.centerIn: parent
        spacing: Theme.gap
        scale: 0.9 + 0.1 * root.presence
        opacity: root.presence

        Rectangle {
            id: card
            objectName: "preview"
            width: Math.min(640, Math.round(root.width * root.share))
            height: Math.round(root.height * root.share) - (buttons.visible ? buttons.height + Theme.gap : 0)
            radius: Theme.radius
            color: Theme.background

            Loader {
                anchors.fill: parent
                anchors.bottomMargin: card.radius
                // Nothing on the card is for touching but the card.
                enabled: false
                Component.onCompleted: setSource(root.preview.screen.page, {
                    "screen": root.preview.screen,
                    "preview": true,
                    "cornerRadius": card.radius
                })
            }
            Rectangle {
                // What goes on below fades out rather than ends in a cut row.
                anchors.bottom: parent.bottom
                anchors.bottomMargin: card.radius
                width: parent.width
                height: 36
                gradient: Gradient {
                    GradientStop {
                        position: 0
                        color: Qt.alpha(card.color, 0)
                    }
                    GradientStop {
                        position: 1
                        color: card.color
                    }
                }
            }
            MouseArea {
                anchors.fill: parent
                Accessible.role: Accessible.Button
                Accessible.name: root.Accessible.name
                Accessible.onPressAction: root.preview.open()
                onClicked: root.preview.open()
            }
        }
        Rectangle {
            id: buttons
            width: card.width
            height: column.height
            visible: actions.count > 0
            radius: Theme.radius
            color: Theme.raised

            Column {
                id: column
                width: parent.width

                Repeater {
                    id: actions
                    model: root.preview.actions

                    PreviewAction {
                        width: column.width
                        onClicked: root.preview.trigger(index)
                    }
                }
            }
        }
    }
}
