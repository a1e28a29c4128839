// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtQuick.Controls.Basic
import Lumora

// A verb's tenses as squares in centred columns, under the verb's name.
GridView {
    id: root

    required property CollectionItemModel collection
    readonly property real inset: collection.sectionInset
    readonly property real spacing: collection.lineSpacing
    readonly property int columns: Math.max(1, Math.floor((width - 2 * inset + spacing) / Math.max(1, cellWidth)))
    readonly property real usedWidth: columns * cellWidth - spacing

    model: collection
    clip: true
    activeFocusOnTab: true
    cacheBuffer: 1200
    boundsBehavior: Flickable.StopAtBounds
    cellWidth: Math.max(1, collection.itemWidth + spacing)
    cellHeight: Math.max(1, collection.itemHeight + spacing)
    leftMargin: Math.max(0, Math.floor((width - usedWidth) / 2))
    rightMargin: Math.max(0, width - usedWidth - spacing - leftMargin)
    bottomMargin: inset - spacing
    ScrollBar.vertical: ScrollBar {}

    header: Text {
        width: root.usedWidth
        topPadding: Theme.margin
        bottomPadding: Theme.margin
        text: root.collection.headerText
        color: Theme.text
        font.pixelSize: Theme.headline
        font.weight: Font.DemiBold
        wrapMode: Text.WordWrap
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    delegate: TenseCard {
        width: root.collection.itemWidth
        height: root.collection.itemHeight
        onPlayed: line => root.collection.tapAudio(index, line)
    }
}
