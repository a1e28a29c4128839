// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// The program's icon beside its name, version and copyright, and the links to its
// makers: low, so that the settings begin in sight.
Column {
    id: root

    required property OptionsScreen options

    topPadding: Theme.margin

    component Line: Text {
        width: parent.width
        visible: text !== ""
        color: Theme.textSecondary
        font.pixelSize: Theme.small
        wrapMode: Text.WordWrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    Item {
        width: parent.width
        height: Math.max(icon.height, names.height)

        Icon {
            id: icon
            x: 2 * Theme.margin
            anchors.verticalCenter: parent.verticalCenter
            name: root.options.icon
            size: 56
            radius: root.options.iconRadius

            Rectangle {
                anchors.fill: parent
                radius: root.options.iconRadius
                color: "transparent"
                border.width: root.options.iconBorderWidth
                border.color: root.options.iconBorderColor
            }
        }
        Column {
            id: names
            anchors.left: icon.right
            anchors.leftMargin: Theme.margin
            anchors.right: parent.right
            anchors.rightMargin: Theme.margin
            anchors.verticalCenter: parent.verticalCenter

            Line {
                text: root.options.appTitle
                color: Theme.text
                font.pixelSize: Theme.title
                font.weight: Font.DemiBold
                Accessible.role: Accessible.Heading
            }
            Line {
                text: Qt.application.version === "" ? "" : qsTrId("settings.version").arg(Qt.application.version)
            }
            Line {
                text: root.options.copyright
            }
        }
    }
    Flow {
        x: 2 * Theme.margin - Theme.gap
        width: parent.width - 2 * x
        spacing: Theme.gap

        LinkButton {
            objectName: "website"
            maximumWidth: parent.width
            text: root.options.websiteTitle
            onClicked: root.options.openWebsite()
        }
        LinkButton {
            objectName: "support"
            maximumWidth: parent.width
            text: root.options.supportTitle
            onClicked: root.options.sendSupportEmail()
        }
    }
}
