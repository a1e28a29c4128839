// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// A form, with its stem and ending told apart where the reader wants that.
Text {
    property string markup
    property bool marked: false

    text: Theme.withColors(markup)
    textFormat: Text.StyledText
    color: Theme.text
    font.weight: marked ? Font.Medium : Font.DemiBold
    wrapMode: Text.Wrap
    // No binding: a text that is laid out anew in the middle of it would be a loop.
    onLineCountChanged: lineHeight = lineCount > 1 ? 0.85 : 1
}
