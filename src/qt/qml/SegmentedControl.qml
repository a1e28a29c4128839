// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Lumora

// Segments of one width, of which one is chosen. Long titles wrap.
Rectangle {
    id: root

    required property var titles
    required property int selected
    property string name
    property string prefix: "segment"
    property bool inTabOrder: false
    readonly property real segmentWidth: width / Math.max(1, titles.length)
    // What the widest title would need in every segment.
    readonly property real wishedWidth: titles.length * titles.reduce((width, title) => Math.max(width, Math.ceil(metrics.advanceWidth(title)) + 2 * Theme.gap + 2), 0)
    readonly property int wishedHeight: {
        let height = 0;
        for (let i = 0; i < row.children.length; ++i)
            height = Math.max(height, row.children[i].implicitHeight);
        return height;
    }

    signal chosen(int segment)

    function choose(segment) {
        if (segment >= 0 && segment < titles.length && segment !== selected)
            chosen(segment);
    }

    implicitWidth: wishedWidth
    implicitHeight: Math.max(36, wishedHeight)
    radius: 8
    color: Theme.segment
    Accessible.role: Accessible.Grouping
    Accessible.name: name

    FontMetrics {
        id: metrics
        font.pixelSize: Theme.small + 1
        font.weight: Font.DemiBold
    }
    Row {
        id: row
        anchors.fill: parent

        Repeater {
            model: root.titles

            T.AbstractButton {
                id: segment

                required property int index
                required property string modelData

                objectName: root.prefix + index
                width: root.segmentWidth
                height: row.height
                implicitHeight: implicitContentHeight
                text: modelData
                checked: index === root.selected
                focusPolicy: root.inTabOrder ? Qt.TabFocus : Qt.NoFocus
                Accessible.role: Accessible.RadioButton
                Accessible.name: text
                Accessible.checked: checked
                onClicked: root.choose(index)
                Keys.onReturnPressed: root.choose(index)

                background: Rectangle {
                    radius: root.radius
                    color: segment.checked ? Theme.segmentOn : segment.down ? Theme.pressed : "transparent"
                    border.width: segment.visualFocus ? 2 : 0
                    border.color: Theme.accentText
                }
                contentItem: Text {
                    leftPadding: 4
                    rightPadding: 4
                    topPadding: 4
                    bottomPadding: 4
                    text: segment.text
                    color: segment.checked ? Theme.segmentInk : Theme.text
                    font.pixelSize: Theme.small + 1
                    font.weight: segment.checked ? Font.DemiBold : Font.Normal
                    wrapMode: Text.Wrap
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                }
            }
        }
    }
}
