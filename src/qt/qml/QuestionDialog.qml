// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound
import QtQuick
import Lumora

// A question on top of everything: in the middle, or rising from the bottom.
FocusScope {
    id: root

    property QtPresenter presenter
    readonly property bool sheet: presenter !== null && presenter.sheet

    focus: true
    Accessible.role: Accessible.Dialog
    Accessible.name: title.text
    Keys.onEscapePressed: presenter.cancel()
    Keys.onBackPressed: presenter.cancel()
    Component.onCompleted: forceActiveFocus()

    Rectangle {
        anchors.fill: parent
        color: Theme.shade

        MouseArea {
            anchors.fill: parent
            onClicked: if (root.sheet)
                root.presenter.cancel()
            onWheel: wheel => wheel.accepted = true
        }
    }
    Rectangle {
        width: Math.min(root.width - 2 * Theme.margin, 400)
        height: column.implicitHeight + 2 * Theme.margin
        anchors.horizontalCenter: parent.horizontalCenter
        y: root.sheet ? root.height - height - Theme.margin : (root.height - height) / 2
        radius: Theme.radius
        color: Theme.raised

        MouseArea {
            anchors.fill: parent
        }
        Column {
            id: column
            x: Theme.margin
            y: Theme.margin
            width: parent.width - 2 * Theme.margin
            spacing: Theme.gap

            Text {
                id: title
                width: parent.width
                visible: text !== ""
                text: root.presenter ? root.presenter.questionTitle : ""
                color: Theme.text
                font.pixelSize: Theme.title
                font.weight: Font.DemiBold
                wrapMode: Text.WordWrap
                horizontalAlignment: Text.AlignHCenter
            }
            Text {
                width: parent.width
                visible: text !== ""
                text: root.presenter ? root.presenter.questionMessage : ""
                color: Theme.text
                font.pixelSize: Theme.body
                wrapMode: Text.WordWrap
                horizontalAlignment: Text.AlignHCenter
            }
            Repeater {
                model: root.presenter ? root.presenter.answers : []

                TouchButton {
                    id: answer

                    required property int index
                    required property var modelData

                    objectName: "answer" + index
                    width: column.width
                    text: modelData.title
                    onClicked: root.presenter.answer(index)

                    contentItem: Text {
                        text: answer.text
                        color: answer.modelData.destructive ? Theme.danger : Theme.accentText
                        font.pixelSize: Theme.body
                        font.weight: answer.modelData.cancel ? Font.DemiBold : Font.Normal
                        horizontalAlignment: Text.AlignHCenter
                        verticalAlignment: Text.AlignVCenter
                        wrapMode: Text.WordWrap
                    }
                }
            }
        }
    }
}
