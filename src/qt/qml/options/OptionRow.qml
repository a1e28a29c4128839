// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// An option: a label with a switch, with segments or with a value that a tap
// changes. What does not fit beside the label goes below it.
GroupedRow {
    id: root

    required text
    required property string detailText
    required property int control
    required property bool disclosure
    required property bool switchOn
    required property var segmentTitles
    required property int selectedSegment
    readonly property string value: control === TableItemModel.Segments ? segmentTitles[selectedSegment] ?? "" : detailText
    // A finger may touch these also above and below what is drawn.
    readonly property int overlap: control === TableItemModel.Switch ? 6 : control === TableItemModel.Segments ? 4 : 0
    readonly property real space: width - 4 * Theme.margin
    readonly property real wishedWidth: (shown.item as Item)?.implicitWidth ?? 0
    readonly property bool stacked: (control === TableItemModel.Segments || detailText !== "") && label.implicitWidth + Theme.margin + wishedWidth > space
    readonly property real valueWidth: stacked ? space : Math.min(wishedWidth, space)
    readonly property real drawnHeight: shown.height - 2 * overlap

    function activate() {
        if (control === TableItemModel.Switch)
            table.model.toggleSwitch(index, !switchOn);
        else if (control === TableItemModel.Segments)
            table.model.changeSegment(index, (selectedSegment + 1) % segmentTitles.length);
        else
            table.model.tap(index);
    }
    function adjust(step) {
        const segment = selectedSegment + step;
        if (control !== TableItemModel.Segments || segment < 0 || segment >= segmentTitles.length)
            return false;
        table.model.changeSegment(index, segment);
        return true;
    }

    cellHeight: Math.max(Theme.touch + 4, (stacked ? label.height + Theme.gap + drawnHeight : Math.max(label.height, drawnHeight)) + 2 * Theme.gap)
    objectName: text
    Accessible.name: value === "" ? text : text + ", " + value
    Accessible.checkable: control === TableItemModel.Switch
    Accessible.checked: switchOn

    Text {
        id: label
        x: 2 * Theme.margin
        y: root.stacked ? Theme.gap : (root.height - height) / 2
        width: root.stacked ? root.space : root.space - root.valueWidth - Theme.margin
        text: root.text
        color: Theme.text
        font.pixelSize: Theme.body
        wrapMode: Text.Wrap
    }
    Loader {
        id: shown
        x: root.stacked ? 2 * Theme.margin : root.width - 2 * Theme.margin - width
        y: root.stacked ? label.y + label.height + Theme.gap - root.overlap : (root.height - height) / 2
        width: root.valueWidth
        active: root.isCell
        sourceComponent: root.control === TableItemModel.Switch ? onOff : root.control === TableItemModel.Segments ? segments : detail
    }

    Component {
        id: onOff

        OnOffSwitch {
            label: root.text
            on: root.switchOn
            onChanged: on => root.table.model.toggleSwitch(root.index, on)
        }
    }
    Component {
        id: segments

        SegmentedControl {
            titles: root.segmentTitles
            selected: root.selectedSegment
            name: root.text
            onChosen: segment => root.table.model.changeSegment(root.index, segment)
        }
    }
    Component {
        id: detail

        Item {
            implicitWidth: text.implicitWidth + (root.disclosure ? Theme.gap + chevron.width : 0)
            implicitHeight: Math.max(text.implicitHeight, chevron.height)

            Text {
                id: text
                anchors.right: chevron.left
                anchors.rightMargin: Theme.gap
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, parent.width - chevron.width - Theme.gap)
                text: root.detailText
                color: Theme.textSecondary
                font.pixelSize: Theme.body
                elide: Text.ElideRight
            }
            Icon {
                id: chevron
                visible: root.disclosure
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                name: "disclosure"
                color: Theme.textSecondary
                size: 18
            }
        }
    }
}
