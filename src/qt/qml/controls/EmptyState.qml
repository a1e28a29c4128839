// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// What a table says when it has no rows.
Text {
    id: root

    required property QtTableView table
    property real maximumWidth: 300

    objectName: "emptyState"
    visible: table.emptyStateVisible
    width: Math.min(table.emptyWidth, maximumWidth)
    text: table.emptyText
    color: Theme.textSecondary
    font.pixelSize: Math.round(table.emptyFontSize * Theme.textScale)
    font.bold: table.emptyBold
    wrapMode: Text.WordWrap
    horizontalAlignment: Text.AlignHCenter
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
