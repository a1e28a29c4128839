// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// The program's icon, name and copyright, and the links to its makers.
Column {
    id: root

    required property OptionsScreen options

    topPadding: Theme.margin + Theme.gap
    spacing: 4

    Icon {
        anchors.horizontalCenter: parent.horizontalCenter
        name: root.options.icon
        size: 84
        radius: root.options.iconRadius

        Rectangle {
            anchors.fill: parent
            radius: root.options.iconRadius
            color: "transparent"
            border.width: root.options.iconBorderWidth
            border.color: root.options.iconBorderColor
        }
    }
    Text {
        width: parent.width
        topPadding: Theme.gap
        text: root.options.appTitle
        color: Theme.text
        font.pixelSize: Theme.headline
        font.weight: Font.DemiBold
        leftPadding: Theme.margin
        rightPadding: Theme.margin
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    Text {
        width: parent.width
        text: root.options.copyright
        color: Theme.textSecondary
        font.pixelSize: Theme.small
        leftPadding: Theme.margin
        rightPadding: Theme.margin
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
    }
    LinkButton {
        objectName: "website"
        anchors.horizontalCenter: parent.horizontalCenter
        maximumWidth: parent.width - 2 * Theme.margin
        text: root.options.websiteTitle
        onClicked: root.options.openWebsite()
    }
    LinkButton {
        objectName: "support"
        anchors.horizontalCenter: parent.horizontalCenter
        maximumWidth: parent.width - 2 * Theme.margin
        text: root.options.supportTitle
        onClicked: root.options.sendSupportEmail()
    }
}
