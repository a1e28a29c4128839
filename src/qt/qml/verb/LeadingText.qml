// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// What stands before a form: its pronoun or, where there is none, a hint.
Text {
    id: root

    required property string pronoun
    required property lineStyle lineStyle
    readonly property bool isHint: pronoun.trim() === ""
    readonly property bool hasCaption: isHint && lineStyle.caption !== ""
    // Stands above the form rather than before it.
    property bool above: false
    // How much higher it is than one line.
    readonly property real captionHeight: hasCaption && !above ? height / 2 : 0

    text: !isHint ? pronoun : hasCaption ? "<b>" + lineStyle.caption + "</b><br>" + lineStyle.hint : lineStyle.hint
    textFormat: isHint ? Text.StyledText : Text.PlainText
    color: Theme.textSecondary
    font.italic: isHint
}
