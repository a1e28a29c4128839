// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtQuick.Controls.Basic
import Lumora

// The field in which a verb is looked for.
Rectangle {
    id: root

    required property HomeScreen home

    // The keyboard is to move on to what was found.
    signal listWanted
    // Enter was pressed: the first result is to open.
    signal accepted
    // The search was ended elsewhere while the cursor was in the field.
    signal ended

    implicitHeight: Math.max(Theme.touch, Theme.body + 27) + Theme.gap
    color: Theme.barBackground

    // The keyboard comes back from what was found.
    function takeKeyboard() {
        input.forceActiveFocus(Qt.BacktabFocusReason);
    }

    Rectangle {
        anchors.fill: parent
        anchors.leftMargin: 12
        anchors.rightMargin: 12
        anchors.bottomMargin: Theme.gap
        radius: Theme.radius
        color: Theme.field
        border.width: input.activeFocus ? 2 : 0
        border.color: Theme.star

        Icon {
            id: glass
            anchors.left: parent.left
            anchors.leftMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            name: "search"
            color: Theme.textSecondary
            size: 20
        }
        Text {
            anchors.fill: input
            visible: input.displayText === ""
            text: root.home.searchPlaceholder
            color: Theme.textSecondary
            font: input.font
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 11
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
            Accessible.ignored: true
        }
        TextInput {
            id: input
            objectName: root.home.searchIdentifier
            anchors.left: glass.right
            anchors.leftMargin: Theme.gap
            anchors.right: clear.left
            height: parent.height
            verticalAlignment: Text.AlignVCenter
            color: Theme.text
            selectionColor: Theme.accentPrimary
            selectedTextColor: "white"
            font.pixelSize: Theme.body
            clip: true
            selectByMouse: true
            activeFocusOnTab: true
            inputMethodHints: Qt.ImhNoAutoUppercase | Qt.ImhNoPredictiveText
            Accessible.role: Accessible.EditableText
            Accessible.searchEdit: true
            Accessible.name: root.home.searchPlaceholder
            onTextChanged: {
                // A line break comes with a pasted text, and shows as a space.
                const oneLine = text.replace(/[\r\n\u2028\u2029]+/g, " ");
                if (oneLine !== text)
                    text = oneLine.trim();
                else
                    root.home.changeSearchText(text);
            }
            onActiveFocusChanged: root.home.searchFocusChanged(activeFocus)
            Keys.onDownPressed: root.listWanted()
            Keys.onReturnPressed: root.accepted()
            Keys.onEnterPressed: root.accepted()
            Keys.onEscapePressed: event => {
                event.accepted = text !== "";
                text = "";
            }
        }
        TouchButton {
            id: clear
            objectName: "searchClear"
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            width: visible ? Theme.touch : Theme.gap
            height: parent.height
            visible: input.text !== ""
            text: qsTrId("search.clear")
            ToolTip.visible: enabled && (hovered || visualFocus)
            ToolTip.delay: Theme.tipDelay
            ToolTip.timeout: Theme.tipTime
            ToolTip.text: text
            onClicked: input.text = ""

            contentItem: Item {
                Icon {
                    anchors.centerIn: parent
                    name: "clear"
                    color: Theme.textSecondary
                    size: 20
                }
            }
        }
    }
    Connections {
        target: root.home
        function onOutletsChanged() {
            // Emptied, or looked up from elsewhere.
            if (root.home.searchText !== input.text)
                input.text = root.home.searchText;
            if (root.home.searchFocus && !input.activeFocus)
                input.forceActiveFocus();
            else if (!root.home.searchFocus && input.activeFocus)
                root.ended();
        }
    }
}
