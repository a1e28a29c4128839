// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound
import QtQuick
import Lumora

// What a question says, and its answers.
ChoiceList {
    id: root

    required property QtPresenter presenter
    // An answer that stands elsewhere; -1 for none.
    property int leftOut: -1
    readonly property bool titled: title.visible || message.visible
    readonly property string heading: title.text || message.text || qsTrId("app.title")

    topPadding: titled ? Theme.margin : 4
    bottomPadding: 4

    Text {
        id: title
        width: parent.width
        visible: text !== ""
        leftPadding: Theme.margin
        rightPadding: Theme.margin
        bottomPadding: message.visible ? Theme.gap : Theme.margin
        text: root.presenter.questionTitle
        color: root.presenter.sheet ? Theme.textSecondary : Theme.text
        font.pixelSize: root.presenter.sheet ? Theme.small + 1 : Theme.title
        font.weight: Font.DemiBold
        wrapMode: Text.WordWrap
        horizontalAlignment: Text.AlignHCenter
    }
    Text {
        id: message
        width: parent.width
        visible: text !== ""
        leftPadding: Theme.margin
        rightPadding: Theme.margin
        bottomPadding: Theme.margin
        text: root.presenter.questionMessage
        Accessible.role: Accessible.StaticText
        Accessible.name: text
        color: Theme.text
        font.pixelSize: Theme.body
        wrapMode: Text.WordWrap
        horizontalAlignment: Text.AlignHCenter
    }
    Repeater {
        model: root.presenter.answers

        AnswerButton {
            id: answer
            width: root.width
            visible: index !== root.leftOut
            onClicked: root.presenter.answer(index)
            onActiveFocusChanged: if (activeFocus)
                root.keepInSight(answer)

            Rectangle {
                visible: answer.index > 0 || root.titled
                x: Theme.margin
                width: parent.width - 2 * Theme.margin
                height: 1
                color: Theme.separator
            }
        }
    }
}
