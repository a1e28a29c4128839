// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// What a sheet is about.
Text {
    leftPadding: Theme.margin
    rightPadding: Theme.margin
    bottomPadding: Theme.gap
    color: Theme.textSecondary
    font.pixelSize: Theme.small + 1
    font.weight: Font.DemiBold
    wrapMode: Text.Wrap
    Accessible.role: Accessible.Heading
    Accessible.name: text
}
