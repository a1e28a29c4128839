// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Lumora

// Segments of one width, of which one is chosen. Long titles wrap, and shrink
// where a word alone is too long.
Item {
    id: root

    required property var titles
    required property int selected
    property string name
    property string prefix: "segment"
    property bool inTabOrder: false
    property color chosenColor: Theme.segmentOn
    // For grounds from which the colour alone does not stand out.
    property color chosenEdge: chosenColor
    property color chosenInk: Theme.segmentInk
    property int padding: 4
    // How much smaller than the touch area it is drawn, above and below.
    property int inset: 4
    readonly property int fullSize: Theme.small + 1
    readonly property int fontSize: Math.max(9, Math.min(fullSize, Math.floor(fullSize * (segmentWidth - 2 * padding) / widest(titles.join(" ").split(" ")))))
    readonly property real segmentWidth: width / Math.max(1, titles.length)
    // What the widest title would need in every segment.
    readonly property real wishedWidth: titles.length * (widest(titles) + 2 * Theme.gap)
    readonly property int wishedHeight: {
        let height = 0;
        for (let i = 0; i < row.children.length; ++i)
            height = Math.max(height, row.children[i].implicitHeight);
        return height;
    }

    signal chosen(int segment)

    function widest(texts) {
        // Reading the font size makes QML call this again when the font changes.
        return metrics.font.pixelSize > 0 ? texts.reduce((width, text) => Math.max(width, Math.ceil(metrics.advanceWidth(text)) + 1), 1) : 1;
    }
    // Gives the keyboard to the chosen segment.
    function takeKeyboard() {
        segments.itemAt(selected)?.forceActiveFocus(Qt.TabFocusReason);
    }
    // Called for the arrow keys.
    function step(steps) {
        const next = selected + steps;
        if (next < 0 || next >= titles.length)
            return;
        choose(next);
    }
    function choose(segment) {
        if (segment < 0 || segment >= titles.length || segment === selected)
            return;
        // Only the chosen segment can have the keyboard, so it moves before the choice.
        if (segments.itemAt(selected)?.activeFocus)
            segments.itemAt(segment).forceActiveFocus(Qt.TabFocusReason);
        chosen(segment);
    }

    implicitWidth: wishedWidth
    implicitHeight: Math.max(36, wishedHeight) + 2 * inset
    Accessible.role: Accessible.Grouping
    Accessible.name: name

    FontMetrics {
        id: metrics
        font.pixelSize: root.fullSize
        font.weight: Font.DemiBold
    }
    Rectangle {
        id: ground
        anchors.fill: parent
        anchors.topMargin: root.inset
        anchors.bottomMargin: root.inset
        radius: 8
        color: Theme.segment
    }
    Row {
        id: row
        anchors.fill: parent

        Repeater {
            id: segments
            // Titles that are given again change the segments that there are.
            model: root.titles.length

            T.RadioButton {
                id: segment

                required property int index

                objectName: root.prefix + index
                width: root.segmentWidth
                height: row.height
                implicitHeight: implicitContentHeight
                text: root.titles[index] ?? ""
                checkable: false
                autoExclusive: false
                checked: index === root.selected
                topInset: root.inset
                bottomInset: root.inset
                // What has the keyboard keeps its place until it has gone on.
                focusPolicy: activeFocus || root.inTabOrder && checked ? Qt.TabFocus : Qt.NoFocus
                Accessible.name: text
                Accessible.checked: checked
                Accessible.onPressAction: root.choose(index)
                Accessible.onToggleAction: root.choose(index)
                onClicked: root.choose(index)
                Keys.onLeftPressed: root.step(-1)
                Keys.onRightPressed: root.step(1)

                background: Rectangle {
                    radius: ground.radius
                    color: segment.checked ? root.chosenColor : segment.down || segment.hovered ? Theme.pressed : "transparent"
                    border.width: segment.visualFocus ? 2 : segment.checked ? 1 : 0
                    border.color: segment.visualFocus ? Theme.accentText : root.chosenEdge
                }
                contentItem: Text {
                    padding: root.padding
                    text: segment.text
                    color: segment.checked ? root.chosenInk : Theme.text
                    font.pixelSize: root.fontSize
                    font.weight: segment.checked ? Font.DemiBold : Font.Normal
                    wrapMode: Text.WordWrap
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                }
            }
        }
    }
}
