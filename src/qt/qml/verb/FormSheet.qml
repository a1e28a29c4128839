// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls.Basic
import Lumora

// One form: how it is said, what it is, and where else in the verb it stands.
VerbSheet {
    id: root

    required property VerbDetailScreen screen
    required property formSheet sheet
    // The page shows squares.
    property bool squares: false
    readonly property bool speaking: screen.spokenText !== ""

    // The person goes to another row with the same form.
    signal followed(int segment, int tense, int line)
    signal tenseAsked(int tense)

    function copy(text) {
        screen.copy(text);
        (room.Window.window as Main)?.tell(qsTrId("notice.copied"));
        close();
    }

    objectName: "formSheet"
    // While it speaks, Escape is the shortcut below.
    closePolicy: speaking ? Popup.CloseOnPressOutside : Popup.CloseOnEscape | Popup.CloseOnPressOutside
    heading: sheet.row
    onOpened: slowly.forceActiveFocus(Qt.TabFocusReason)

    Text {
        width: parent.width
        leftPadding: Theme.margin
        rightPadding: Theme.margin
        text: Theme.brokenAtSpaces(root.sheet.row)
        color: Theme.text
        font.pixelSize: Theme.headline + 6
        font.weight: Font.DemiBold
        wrapMode: Text.Wrap
        Accessible.role: Accessible.Heading
        Accessible.name: root.sheet.row
    }
    Text {
        width: parent.width
        visible: text !== ""
        leftPadding: Theme.margin
        rightPadding: Theme.margin
        topPadding: 2
        text: root.sheet.ipa === "" ? "" : "[" + root.sheet.ipa + "]"
        color: Theme.textSecondary
        font.pixelSize: Theme.body
        wrapMode: Text.Wrap
        // A screen reader would spell the phonetic letters.
        Accessible.ignored: true
    }
    Text {
        width: parent.width
        visible: text !== ""
        leftPadding: Theme.margin
        rightPadding: Theme.margin
        topPadding: Theme.gap
        text: root.sheet.person
        color: Theme.text
        font.pixelSize: Theme.body
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    SheetRow {
        objectName: "formTense"
        text: root.sheet.tenseTitle
        detail: root.sheet.otherTitle
        image: "disclosure"
        onClicked: root.tenseAsked(root.sheet.tense)
    }
    SheetRow {
        id: slowly
        objectName: "saySlowly"
        text: root.speaking ? qsTrId("action.stop") : qsTrId("sheet.slowly")
        image: root.speaking ? "Stop" : "Play"
        onClicked: {
            if (root.speaking)
                root.screen.stopSpeaking();
            else
                root.screen.saySlowly(root.sheet.tense, root.sheet.line, root.squares);
        }
    }
    Shortcut {
        sequences: [StandardKey.Cancel] // qmllint disable unqualified
        enabled: root.opened && root.speaking
        onActivated: root.screen.stopSpeaking()
    }
    SheetRow {
        objectName: "copyForm"
        text: qsTrId("sheet.copy.form")
        detail: root.sheet.form
        image: "share_copy"
        onClicked: root.copy(root.sheet.form)
    }
    SheetRow {
        objectName: "copyRow"
        text: qsTrId("sheet.copy.row")
        detail: root.sheet.row
        image: "share_copy"
        onClicked: root.copy(root.sheet.row)
    }
    SheetHeading {
        width: parent.width
        visible: root.sheet.others.length > 0
        topPadding: Theme.gap
        text: qsTrId("sheet.others")
    }
    Repeater {
        model: root.sheet.others

        SheetRow {
            required property formLink modelData
            required property int index

            objectName: "otherPlace" + index
            text: modelData.row
            detail: modelData.tenseTitle
            onClicked: {
                root.close();
                root.followed(modelData.segment, modelData.tense, modelData.line);
            }
        }
    }
    Item {
        width: parent.width
        height: Theme.gap
    }
    SheetButton {
        objectName: "sheetDone"
        width: parent.width
        text: qsTrId("common.done")
        Accessible.onPressAction: clicked()
        onClicked: root.close()
    }
}
