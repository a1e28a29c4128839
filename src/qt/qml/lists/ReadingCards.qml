// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound
import QtQuick
import Lumora

// What the text of the search may mean: above what was found, or in its place with
// what may find more. Its height is known at once, so that the list below it does
// not move afterwards.
FocusScope {
    id: root

    required property HomeScreen home
    readonly property int count: cards.count
    readonly property real cardsTop: sentence.visible ? sentence.y + sentence.height + Theme.margin : Theme.gap
    readonly property real cardsBottom: cardsTop + count * (Theme.rowHeight + Theme.gap)

    // The Up key was pressed on the first card.
    signal fieldWanted

    function takeKeyboard(card) {
        cards.itemAt(card)?.forceActiveFocus(Qt.TabFocusReason);
    }

    implicitHeight: forms.visible ? forms.y + forms.height + Theme.gap : count > 0 || sentence.visible ? cardsBottom : 0

    Text {
        id: sentence
        objectName: "nothingFound"
        x: (root.width - width) / 2
        y: root.count > 0 ? Theme.margin : Theme.touch
        width: Math.min(root.count > 0 ? 520 : 300, root.width - 2 * Theme.margin)
        visible: root.home.nothingFound
        text: root.count > 0 ? qsTrId("search.did_you_mean") : qsTrId("search.empty")
        Accessible.role: Accessible.StaticText
        Accessible.name: text
        color: Theme.textSecondary
        font.pixelSize: root.count > 0 ? Theme.body : Theme.title
        font.bold: true
        wrapMode: Text.WordWrap
        horizontalAlignment: Text.AlignHCenter
    }
    Repeater {
        id: cards
        model: root.home.readings

        ReadingCard {
            required property int index

            x: Theme.gap
            y: root.cardsTop + index * (Theme.rowHeight + Theme.gap)
            width: root.width - 2 * Theme.gap
            height: Theme.rowHeight
            objectName: "reading" + index
            onClicked: root.home.openReading(index)
            Keys.onUpPressed: {
                if (index > 0)
                    root.takeKeyboard(index - 1);
                else
                    root.fieldWanted();
            }
            // After the last card the key moves on to the list.
            Keys.onDownPressed: event => {
                event.accepted = index + 1 < root.count;
                root.takeKeyboard(index + 1);
            }
        }
    }
    LinkButton {
        id: forms
        objectName: "searchForms"
        x: (root.width - width) / 2
        y: root.cardsBottom
        maximumWidth: root.width - 2 * Theme.gap
        visible: root.home.formsOffered
        text: qsTrId("search.in_forms")
        onClicked: root.home.showFormsOption()
    }
}
