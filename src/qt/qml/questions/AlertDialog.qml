// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// A question in the middle of the window. A tap beside it does not answer it.
Question {
    id: root

    required property QtPresenter presenter

    heading: list.heading
    onDismissed: presenter.cancel()

    Rectangle {
        objectName: "question"
        anchors.centerIn: parent
        width: Math.min(root.width - 2 * Theme.margin, 400)
        height: Math.min(root.height - 2 * Theme.margin, list.contentHeight)
        opacity: root.presence
        radius: Theme.sheetRadius
        color: Theme.raised

        MouseArea {
            anchors.fill: parent
        }
        AnswerList {
            id: list
            anchors.fill: parent
            presenter: root.presenter
        }
    }
}
