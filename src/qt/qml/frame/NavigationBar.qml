// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound
import QtQuick
import Lumora

// The bar above a screen: the way back, the screen's buttons and its title.
Rectangle {
    id: root

    required property AppScreen screen
    property bool canGoBack: false
    property bool wide: false
    property bool hasButtons: true
    // The last of its buttons, where a page has more to offer than its screen.
    property Component menu: null
    property real cornerRadius: 0
    readonly property var leftButtons: screen.leftButtons
    readonly property var rightButtons: screen.rightButtons

    signal backRequested

    implicitHeight: Theme.barHeight
    radius: cornerRadius
    color: Theme.barBackground

    Rectangle {
        // The lower corners stay square.
        visible: root.radius > 0
        y: root.radius
        width: parent.width
        height: parent.height - y
        color: root.color
    }

    Row {
        id: left
        anchors.left: parent.left
        anchors.leftMargin: 4
        anchors.verticalCenter: parent.verticalCenter

        BarButton {
            objectName: "backButton"
            visible: root.canGoBack
            image: "back"
            text: qsTrId("navigation.back")
            onClicked: root.backRequested()
        }
        Repeater {
            // Buttons that are given again change those that there are.
            model: root.hasButtons ? root.leftButtons.length : 0

            ScreenBarButton {
                required property int index

                screen: root.screen
                button: root.leftButtons[index]
                // There is no list to hide where nothing stands beside it.
                visible: root.wide || button.identifier !== "displayMode"
            }
        }
    }
    Text {
        id: title

        readonly property real free: parent.width - left.width - right.width - 2 * Theme.gap - 8

        // In the middle, as far as the buttons let it.
        x: Math.max(left.x + left.width + Theme.gap, Math.min((parent.width - width) / 2, right.x - Theme.gap - width))
        width: Math.min(implicitWidth, free)
        height: parent.height
        text: root.screen.title
        color: Theme.navigationBarTitle
        font.pixelSize: Math.round(18 * Theme.barScale)
        font.weight: Font.DemiBold
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 11
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
        Accessible.ignored: text === ""
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    Row {
        id: right
        anchors.right: parent.right
        anchors.rightMargin: 4
        anchors.verticalCenter: parent.verticalCenter

        Repeater {
            model: root.hasButtons ? root.rightButtons.length : 0

            ScreenBarButton {
                required property int index

                screen: root.screen
                button: root.rightButtons[index]
            }
        }
        Loader {
            visible: sourceComponent !== null
            sourceComponent: root.menu
        }
    }
}
