// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound
import QtQuick
import Lumora

// One thing about a verb: what it is, and beside it a text or verbs to go to.
Item {
    id: root

    required property verbCardLine modelData
    property bool wide: false
    readonly property real inset: wide ? 0 : Theme.margin
    // Large labels would be broken within their words beside a text.
    readonly property bool stacked: Theme.largeText
    readonly property real labelWidth: stacked ? 0 : Math.round((width - 2 * inset) * (wide ? 0.26 : 0.33))
    readonly property real textY: stacked ? label.height : 0
    readonly property bool leads: modelData.links.length > 0

    signal followed(int id)

    implicitHeight: Math.max(label.y + label.height, textY + (leads ? links.height : words.height))
    Accessible.role: Accessible.StaticText
    Accessible.name: modelData.label + (leads ? "" : ": " + modelData.text)

    Text {
        id: label
        x: root.inset
        width: root.stacked ? root.width - 2 * root.inset : root.labelWidth - Theme.gap
        // In line with what is beside it.
        y: root.stacked ? 0 : root.leads ? Math.max(0, Math.round((Theme.touch - font.pixelSize * 1.4) / 2)) : 2
        text: root.modelData.label
        color: Theme.textSecondary
        font.pixelSize: Theme.small + 1
        wrapMode: Text.Wrap
    }
    Text {
        id: words
        x: root.inset + root.labelWidth
        y: root.textY
        width: root.width - x - root.inset
        visible: !root.leads
        text: root.modelData.text
        color: Theme.text
        font.pixelSize: Theme.body - 1
        wrapMode: Text.Wrap
    }
    Flow {
        id: links
        x: words.x - Theme.gap
        y: root.textY
        width: root.width - x - root.inset

        Repeater {
            model: root.modelData.links

            LinkButton {
                required property verbLink modelData
                required property int index

                objectName: "verbLink." + modelData.title
                maximumWidth: links.width
                text: modelData.title
                Accessible.onPressAction: clicked()
                onClicked: root.followed(modelData.id)
            }
        }
    }
}
