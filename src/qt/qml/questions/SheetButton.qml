// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// A button at the foot of a sheet.
TouchButton {
    id: root

    contentItem: Text {
        text: root.text
        color: root.enabled ? Theme.accentText : Theme.textSecondary
        font.pixelSize: Theme.body
        font.weight: Font.DemiBold
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 11
        elide: Text.ElideRight
    }
}
