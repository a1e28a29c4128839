// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// A row of the detail table: a tense's title, the verb's translation, or a form
// with its pronoun and its play control. A verb has many, and they come at
// once: each is as few items as it can be.
Rectangle {
    id: root

    required property int index
    required property int kind
    required property int section
    required property string title
    required property string text
    required property lineStyle lineStyle
    required property bool alone
    required property string accessibleName
    required property string reuseIdentifier
    required property IndicatorSource indicatorSource
    required property QtTableView table
    required property VerbDetailScreen screen
    required property TenseFits fits
    // The form that was searched for.
    property bool opened: false
    readonly property bool isCell: kind === TableItemModel.Cell
    readonly property bool isForm: reuseIdentifier === "CellConjugation"
    readonly property bool isCurrent: ListView.isCurrentItem && ListView.view !== null && ListView.view.parent.activeFocus
    // The first section is not a tense.
    readonly property int tense: section - 1
    readonly property bool unused: alone && title !== "" && screen.hasForms
    readonly property var fit: isForm ? fits.of(tense, screen.selectedMood + "/" + fits.revision) : null
    readonly property bool stacked: fit?.stacked ?? false

    // The sheet of the form, or of the tense, is asked for.
    signal asked

    // What the keyboard does to a row.
    function activate(key) {
        if (key === Qt.Key_Space)
            table.model.tapAccessory(index);
        else
            asked();
    }
    function adjust(step) {
        return false;
    }
    function comeIntoSight() {
        const list = ListView.view;
        if (play.running && list !== null && !list.moving)
            (list.parent as TableContent).bringIntoSight(index);
    }

    // A pooled row would otherwise stay in the tree that a screen reader sees.
    ListView.onPooled: visible = false
    ListView.onReused: visible = true

    implicitHeight: isForm ? Math.max(Theme.touch + 4, leading.captionHeight + (stacked ? leading.height : 0) + form.height + 2 * 6) : Math.max(isCell ? Theme.touch + 4 : Theme.headingHeight, leading.height + 2 * 6)
    color: play.running ? Theme.pressed : opened ? Theme.marked : isCell ? Theme.background : Theme.header
    border.width: isCurrent ? 2 : 0
    border.color: Theme.accentText
    Accessible.role: isCell ? Accessible.ListItem : Accessible.Heading
    Accessible.focusable: isCell
    Accessible.focused: isCurrent
    Accessible.onPressAction: asked()
    Accessible.name: opened ? accessibleName + ", " + qsTrId("verb.searched") : isCell ? accessibleName : unused ? title + ", " + qsTrId("tense.unused") : title
    Accessible.description: lineStyle.description

    LeadingText {
        id: leading
        pronoun: root.isCell ? root.text : root.unused ? root.title + " \u2013 " + qsTrId("tense.unused") : root.title
        lineStyle: root.lineStyle
        above: root.stacked
        x: Theme.margin
        y: root.fit === null ? (root.height - height) / 2 : root.stacked ? form.y - height : form.y + form.baselineOffset - baselineOffset - captionHeight
        // An elided pronoun touches its form, which begins where the others do.
        width: root.fit === null || root.stacked ? play.x - x : root.fit.pronounWidth + (root.lineStyle.joined ? root.fit.blank : 0)
        horizontalAlignment: root.fit === null || root.stacked ? Text.AlignLeft : Text.AlignRight
        color: !root.isCell ? Theme.accentText : root.isForm ? Theme.textSecondary : Theme.text
        font.pixelSize: root.fit?.pronounSize ?? (root.isCell ? Theme.body : Theme.small + 1)
        font.weight: root.isCell ? Font.Normal : Font.DemiBold
        font.italic: isHint || root.isCell && !root.isForm
        wrapMode: root.fit === null || root.stacked ? Text.WordWrap : Text.NoWrap
    }
    FormText {
        id: form
        visible: root.isForm
        x: leading.x + (root.fit === null || root.stacked || root.fit.pronounWidth === 0 ? 0 : root.fit.pronounWidth + root.fit.blank)
        y: (root.height - height + leading.captionHeight + (root.stacked ? leading.height : 0)) / 2
        width: play.x - x
        markup: root.lineStyle.markup
        marked: root.screen.marksForms
        font.pixelSize: root.fit?.size ?? Theme.body
    }
    PlayControl {
        id: play
        x: parent.width - width - Theme.gap
        // The touch area is as high as the row allows.
        height: parent.height
        width: Theme.playWidth
        focusPolicy: Qt.NoFocus
        visible: root.isForm || !root.isCell && !root.alone
        ofTense: !root.isForm
        objectName: root.isForm ? "play" : "playTense" + root.tense
        source: root.indicatorSource
        spoken: root.isForm ? root.accessibleName : root.title
        onClicked: {
            if (root.isForm)
                root.table.model.tapAccessory(root.index);
            else
                root.screen.playTense(root.tense);
        }
        // While a whole tense is read, the row that is read stays in sight.
        onRunningChanged: if (running)
            Qt.callLater(root.comeIntoSight) // qmllint disable
    }
    Loader {
        active: root.opened
        height: parent.height
        sourceComponent: MarkedEdge {
        }
    }
    Rectangle {
        visible: root.isCell && root.table.separators
        y: parent.height - 1
        width: parent.width
        height: 1
        color: Theme.separator
    }
}
