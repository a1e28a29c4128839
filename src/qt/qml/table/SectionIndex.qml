// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound
import QtQuick
import Lumora

// Letters down the edge of a list. A thumb that slides over them scrolls the
// list, with the letter in a bubble beside it. Where there is no room for all,
// some stand aside but can still be reached.
Item {
    id: root

    required property ListView list
    required property QtTableView table
    readonly property var titles: table.model.indexTitles
    readonly property int letterHeight: Theme.small + 3
    readonly property int step: Math.max(1, Math.ceil(titles.length * letterHeight / Math.max(1, height - 2 * Theme.gap)))
    readonly property real rowHeight: Math.min(Math.max(22, letterHeight), (height - 2 * Theme.gap) / Math.max(1, titles.length))
    readonly property real firstY: (height - rowHeight * titles.length) / 2
    property int current: -1

    function select(y) {
        const chosen = Math.max(0, Math.min(titles.length - 1, Math.floor((y - firstY) / rowHeight)));
        if (chosen === current)
            return;
        current = chosen;
        const row = table.model.rowForIndexTitle(chosen);
        if (row >= 0)
            list.positionViewAtIndex(row, ListView.Beginning);
    }

    width: 28
    visible: titles.length > 1
    Accessible.ignored: true

    Repeater {
        model: root.visible ? root.titles : []

        Text {
            required property int index
            required property string modelData

            x: 0
            y: root.firstY + index * root.rowHeight
            width: root.width
            height: root.rowHeight
            visible: index % root.step === 0
            text: modelData
            color: Theme.accentText
            font.pixelSize: Theme.small - 1
            font.weight: Font.DemiBold
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
        }
    }
    Rectangle {
        id: bubble
        visible: area.pressed && root.current >= 0
        anchors.right: parent.left
        anchors.rightMargin: Theme.margin
        y: Math.max(Theme.gap, Math.min(root.height - height - Theme.gap, root.firstY + (root.current + 0.5) * root.rowHeight - height / 2))
        width: 60
        height: 60
        radius: 30
        color: Theme.accentPrimary

        Text {
            anchors.centerIn: parent
            text: root.current >= 0 && root.current < root.titles.length ? root.titles[root.current] : ""
            color: "white"
            font.pixelSize: 28
            font.weight: Font.DemiBold
        }
    }
    MouseArea {
        id: area
        objectName: "sectionIndex"
        anchors.fill: parent
        preventStealing: true
        onPressed: mouse => root.select(mouse.y)
        onPositionChanged: mouse => root.select(mouse.y)
        onReleased: root.current = -1
        onCanceled: root.current = -1
    }
}
