// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// What a tense is for, with an example.
VerbSheet {
    id: root

    required property tenseNote note

    component Paragraph: Text {
        width: parent.width
        visible: text !== ""
        leftPadding: Theme.margin
        rightPadding: Theme.margin
        color: Theme.text
        font.pixelSize: Theme.body
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    objectName: "tenseSheet"
    heading: note.title
    onOpened: done.forceActiveFocus(Qt.TabFocusReason)

    Paragraph {
        text: root.note.title
        font.pixelSize: Theme.headline
        font.weight: Font.DemiBold
        Accessible.role: Accessible.Heading
    }
    Paragraph {
        text: root.note.otherTitle
        color: Theme.textSecondary
        font.pixelSize: Theme.small + 1
    }
    Paragraph {
        topPadding: Theme.gap
        text: root.note.use
    }
    Paragraph {
        topPadding: Theme.margin
        text: root.note.example
        font.weight: Font.DemiBold
    }
    Paragraph {
        topPadding: 2
        text: root.note.translation
        color: Theme.textSecondary
    }
    Item {
        width: parent.width
        height: Theme.gap
    }
    SheetButton {
        id: done
        objectName: "sheetDone"
        width: parent.width
        text: qsTrId("common.done")
        Accessible.onPressAction: clicked()
        onClicked: root.close()
    }
}
