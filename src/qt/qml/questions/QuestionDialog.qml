// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtQuick.Controls.Basic
import Lumora

// A question on top of everything. An alert stands in the middle; a sheet rises
// from the bottom of a narrow window, and stands by its row on a wide one.
FocusScope {
    id: root

    required property QtPresenter presenter
    readonly property bool sheet: presenter.sheet
    readonly property bool rising: sheet && !popover
    readonly property bool popover: sheet && !presenter.modals.fullScreen && anchor.height > 0
    // Its row's place in the window.
    property rect anchor
    readonly property bool fitsBelow: anchor.y + anchor.height + Theme.gap + card.height <= height - Theme.gap
    readonly property bool fitsAbove: anchor.y - Theme.gap - card.height >= Theme.gap
    readonly property var answers: presenter.answers
    // On a rising sheet the way out stands apart.
    readonly property int cancelIndex: rising ? answers.findIndex(answer => answer.cancel) : -1
    property real presence: 0

    function findAnchor() {
        const item = presenter.anchorTable?.list?.itemAtIndex(presenter.anchorRow) ?? null;
        anchor = item === null ? Qt.rect(0, 0, 0, 0) : mapFromItem(item, 0, 0, item.width, item.height);
    }
    function moveFocus(forward) {
        (Window.activeFocusItem ?? root).nextItemInFocusChain(forward).forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason);
    }

    focus: true
    Accessible.role: Accessible.Dialog
    Accessible.name: title.text || message.text || qsTrId("app.title")
    Keys.onEscapePressed: presenter.cancel()
    Keys.onBackPressed: presenter.cancel()
    Keys.onDownPressed: moveFocus(true)
    Keys.onUpPressed: moveFocus(false)
    onWidthChanged: Qt.callLater(findAnchor)
    onHeightChanged: Qt.callLater(findAnchor)
    Component.onCompleted: {
        findAnchor();
        presence = 1;
    }

    Connections {
        target: root.presenter
        function onQuestionChanged() {
            if (root.presenter.asking)
                root.findAnchor();
        }
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
        opacity: root.presence * (root.popover ? 0.5 : 1)

        MouseArea {
            anchors.fill: parent
            onClicked: if (root.sheet)
                root.presenter.cancel()
            onWheel: wheel => wheel.accepted = true
        }
    }
    Rectangle {
        // Points at the row.
        visible: root.popover && (root.fitsBelow || root.fitsAbove)
        opacity: root.presence
        x: card.x + card.width - 40
        y: root.fitsBelow ? card.y - height / 2 : card.y + card.height - height / 2
        width: 16
        height: 16
        rotation: 45
        color: Theme.raised
    }
    Rectangle {
        id: card

        readonly property real space: root.height - 2 * Theme.margin - (cancel.visible ? cancel.height + Theme.gap : 0)
        readonly property real restY: {
            if (root.rising)
                return (cancel.visible ? cancel.restY - Theme.gap : root.height - Theme.margin) - height;
            if (!root.popover)
                return (root.height - height) / 2;
            if (root.fitsBelow)
                return root.anchor.y + root.anchor.height + Theme.gap;
            if (root.fitsAbove)
                return root.anchor.y - Theme.gap - height;
            return Math.max(Theme.gap, Math.min(root.anchor.y, root.height - Theme.gap - height));
        }

        objectName: "question"
        width: Math.min(root.width - 2 * Theme.margin, root.popover ? Math.max(280, Math.round(280 * Theme.textScale)) : 400)
        height: Math.min(space, column.implicitHeight)
        x: root.popover ? Math.max(Theme.gap, Math.min(root.anchor.x + root.anchor.width - Theme.margin, root.width - Theme.gap) - width) : (root.width - width) / 2
        y: restY + (root.rising ? (1 - root.presence) * (root.height - restY) : 0)
        opacity: root.rising ? 1 : root.presence
        radius: Theme.sheetRadius
        color: Theme.raised

        MouseArea {
            anchors.fill: parent
        }
        Flickable {
            id: flickable
            anchors.fill: parent
            contentHeight: column.implicitHeight
            clip: contentHeight > height
            boundsBehavior: Flickable.StopAtBounds
            interactive: contentHeight > height

            ScrollBar.vertical: ScrollBar {
                Accessible.ignored: true
            }

            Column {
                id: column
                width: parent.width
                topPadding: title.visible || message.visible ? Theme.margin : 4
                bottomPadding: 4

                Text {
                    id: title
                    width: parent.width
                    visible: text !== ""
                    leftPadding: Theme.margin
                    rightPadding: Theme.margin
                    bottomPadding: message.visible ? Theme.gap : Theme.margin
                    text: root.presenter.questionTitle
                    color: root.sheet ? Theme.textSecondary : Theme.text
                    font.pixelSize: root.sheet ? Theme.small + 1 : Theme.title
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
                    model: root.answers

                    AnswerButton {
                        id: answer
                        width: column.width
                        visible: index !== root.cancelIndex
                        onClicked: root.presenter.answer(index)
                        // What the keyboard is on stays in sight.
                        onActiveFocusChanged: if (activeFocus)
                            flickable.contentY = Math.max(0, Math.min(y, Math.max(flickable.contentY, y + height - flickable.height)))

                        Rectangle {
                            visible: answer.index > 0 || title.visible || message.visible
                            x: Theme.margin
                            width: parent.width - 2 * Theme.margin
                            height: 1
                            color: Theme.separator
                        }
                    }
                }
            }
        }
    }
    Rectangle {
        id: cancel

        readonly property real restY: root.height - Theme.margin - height

        visible: root.cancelIndex >= 0
        x: card.x
        y: restY + (1 - root.presence) * (root.height - card.restY)
        width: card.width
        height: button.item === null ? 0 : button.item.implicitHeight
        radius: Theme.sheetRadius
        color: Theme.raised

        Loader {
            id: button
            width: parent.width
            active: cancel.visible

            sourceComponent: AnswerButton {
                index: root.cancelIndex
                modelData: root.answers[root.cancelIndex]
                onClicked: root.presenter.answer(index)
            }
        }
    }
}
