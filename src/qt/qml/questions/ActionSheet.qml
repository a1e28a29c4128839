// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// What can be done with a row: rising from the bottom of a narrow window, beside
// the row on a wide one.
Question {
    id: root

    required property QtPresenter presenter
    readonly property bool popover: !presenter.modals.fullScreen && anchor.height > 0
    // Its row's place in the window.
    property rect anchor
    readonly property bool fitsBelow: anchor.y + anchor.height + Theme.gap + card.height <= height - Theme.gap
    readonly property bool fitsAbove: anchor.y - Theme.gap - card.height >= Theme.gap
    // On a rising sheet the button that cancels stands apart.
    readonly property int cancelIndex: popover ? -1 : presenter.cancelIndex

    function findAnchor() {
        const list = presenter.anchorTable?.list as ListView;
        const item = list?.itemAtIndex(presenter.anchorRow) ?? null;
        anchor = item === null ? Qt.rect(0, 0, 0, 0) : mapFromItem(item, 0, 0, item.width, item.height);
    }

    heading: list.heading
    shade: popover ? 0.5 : 1
    onDismissed: presenter.cancel()
    onTappedBeside: presenter.cancel()
    onWidthChanged: Qt.callLater(findAnchor) // qmllint disable
    onHeightChanged: Qt.callLater(findAnchor) // qmllint disable
    Component.onCompleted: findAnchor()

    Connections {
        target: root.presenter
        function onQuestionChanged() {
            if (root.presenter.asking)
                root.findAnchor();
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
            if (!root.popover)
                return (cancel.visible ? cancel.restY - Theme.gap : root.height - Theme.margin) - height;
            if (root.fitsBelow)
                return root.anchor.y + root.anchor.height + Theme.gap;
            if (root.fitsAbove)
                return root.anchor.y - Theme.gap - height;
            return Math.max(Theme.gap, Math.min(root.anchor.y, root.height - Theme.gap - height));
        }

        objectName: "question"
        width: Math.min(root.width - 2 * Theme.margin, root.popover ? Math.max(280, Math.round(280 * Theme.textScale)) : 400)
        height: Math.min(space, list.contentHeight)
        x: root.popover ? Math.max(Theme.gap, Math.min(root.anchor.x + root.anchor.width - Theme.margin, root.width - Theme.gap) - width) : (root.width - width) / 2
        y: restY + (root.popover ? 0 : (1 - root.presence) * (root.height - restY))
        opacity: root.popover ? root.presence : 1
        radius: Theme.sheetRadius
        color: Theme.raised

        MouseArea {
            anchors.fill: parent
        }
        AnswerList {
            id: list
            anchors.fill: parent
            presenter: root.presenter
            leftOut: root.cancelIndex
        }
    }
    Rectangle {
        id: cancel

        readonly property real restY: root.height - Theme.margin - height

        visible: root.cancelIndex >= 0
        x: card.x
        y: restY + (1 - root.presence) * (root.height - card.restY)
        width: card.width
        height: button.implicitHeight
        radius: Theme.sheetRadius
        color: Theme.raised

        Loader {
            id: button
            width: parent.width
            active: cancel.visible

            sourceComponent: AnswerButton {
                index: root.cancelIndex
                modelData: root.presenter.answers[root.cancelIndex]
                onClicked: root.presenter.answer(index)
            }
        }
    }
}
