// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound
import QtQuick
import Lumora

// One thing about a verb: what it is, and beside it a text or verbs to go to.
Item {
    id: root

    required property verbCardLine line
    property bool wide: false
    readonly property real inset: wide ? 0 : Theme.margin
    // Large labels would be broken within their words beside a text.
    readonly property bool stacked: Theme.largeText
    readonly property real labelWidth: stacked ? 0 : Math.round((width - 2 * inset) * (wide ? 0.26 : 0.33))
    readonly property real textY: stacked ? label.height : 0
    readonly property var links: line.links
    readonly property bool leads: links.length > 0
    property int mostLinks: 0

    signal followed(int id)

    onLinksChanged: mostLinks = Math.max(mostLinks, links.length)
    implicitHeight: Math.max(label.y + label.height, textY + (leads ? flow.height : words.height))
    Accessible.role: Accessible.StaticText
    Accessible.name: line.label + (leads ? "" : ": " + line.text)

    Text {
        id: label
        x: root.inset
        width: root.stacked ? root.width - 2 * root.inset : root.labelWidth - Theme.gap
        // In line with what is beside it.
        y: root.stacked ? 0 : root.leads ? Math.max(0, Math.round((Theme.touch - font.pixelSize * 1.4) / 2)) : 2
        text: root.line.label
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
        text: root.line.text
        color: Theme.text
        font.pixelSize: Theme.body - 1
        wrapMode: Text.Wrap
    }
    Flow {
        id: flow
        x: words.x - Theme.gap
        y: root.textY
        width: root.width - x - root.inset

        Repeater {
            // Those that another verb does not need stay, out of sight.
            model: root.mostLinks

            LinkButton {
                required property int index
                readonly property var link: root.links[index] ?? null

                visible: link !== null
                objectName: "verbLink." + text
                maximumWidth: flow.width
                text: link?.title ?? ""
                Accessible.onPressAction: clicked()
                onClicked: root.followed(link.id)
            }
        }
    }
}
