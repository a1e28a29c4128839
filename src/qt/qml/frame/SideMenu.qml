// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// The menu that slides in from the left over part of the window.
FocusScope {
    id: root

    required property Modal modal
    required property EdgePull pull
    // The screen over which it slides.
    readonly property HomeScreen home: (Window.window as Main)?.split?.home ?? null
    readonly property TableScreen screen: (modal.screens[0] ?? null) as TableScreen

    // Released halfway, it goes on in the direction of the finger.
    function settle(velocity) {
        if (velocity > 100 || velocity > -100 && presence.value > 0.5)
            presence.comeIn();
        else
            modal.close();
    }

    ModalPresence {
        id: presence
        modal: root.modal
        held: root.pull.active || drag.active
    }
    Binding {
        target: presence
        property: "value"
        value: Math.min(1, root.pull.distance / panel.width)
        when: root.pull.active
        restoreMode: Binding.RestoreNone
    }
    Connections {
        target: root.pull
        function onActiveChanged() {
            if (!root.pull.active)
                root.settle(root.pull.velocity);
        }
    }
    Rectangle {
        anchors.fill: parent
        color: Theme.shade
        opacity: presence.value

        MouseArea {
            objectName: "besideMenu"
            anchors.fill: parent
            onClicked: root.modal.close()
            onWheel: wheel => wheel.accepted = true
        }
    }
    Rectangle {
        id: panel
        objectName: "sideMenu"
        x: (presence.value - 1) * width
        width: Math.min(Math.round(root.width * 0.82), 300)
        height: root.height
        color: Theme.menu
        Accessible.role: Accessible.PopupMenu
        Accessible.name: title.text

        MouseArea {
            anchors.fill: parent
            onWheel: wheel => wheel.accepted = true
        }
        Text {
            id: title
            width: parent.width
            padding: Theme.margin
            topPadding: 2 * Theme.margin
            text: qsTrId("app.title")
            color: Theme.barText
            font.pixelSize: Theme.headline
            font.weight: Font.DemiBold
            wrapMode: Text.WordWrap
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        Rectangle {
            id: place

            readonly property HomeScreen home: root.home
            readonly property var tab: home?.tabs.find(tab => tab.tag === home.selectedTab) ?? null

            objectName: "drawerPlace"
            anchors.top: title.bottom
            width: parent.width
            height: Math.round(52 * Math.max(1, Theme.textScale))
            visible: tab !== null
            color: "#26ffffff"
            Accessible.role: Accessible.StaticText
            Accessible.name: qsTrId("drawer.here") + ": " + tabName.text

            Rectangle {
                width: 4
                height: parent.height
                color: Theme.accentSecondary
            }
            Icon {
                id: tabIcon
                x: Theme.margin
                anchors.verticalCenter: parent.verticalCenter
                name: place.tab?.image ?? ""
                color: Theme.accentSecondary
            }
            Text {
                id: tabName
                anchors.left: tabIcon.right
                anchors.leftMargin: Theme.margin
                anchors.right: parent.right
                anchors.rightMargin: Theme.margin
                height: parent.height
                verticalAlignment: Text.AlignVCenter
                text: place.tab?.title ?? ""
                color: Theme.barText
                font.pixelSize: Theme.body
                font.weight: Font.DemiBold
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: 12
            }
        }
        Loader {
            anchors.top: place.bottom
            anchors.topMargin: Theme.gap
            anchors.bottom: parent.bottom
            width: parent.width
            focus: true
            active: root.screen !== null
            onLoaded: item.focus = true

            sourceComponent: TableContent {
                id: rows
                table: root.screen.table
                name: title.text
                stickyHeaders: false
                delegate: MenuRow {
                    width: ListView.view.width
                    table: rows.table
                }
                Component.onCompleted: {
                    root.screen.attach(rows);
                    root.screen.prepare();
                }
            }
        }
        DragHandler {
            id: drag
            target: null
            yAxis.enabled: false
            grabPermissions: PointerHandler.CanTakeOverFromAnything
            onActiveTranslationChanged: if (active)
                presence.value = Math.max(0, Math.min(1, 1 + activeTranslation.x / panel.width))
            onActiveChanged: if (!active)
                root.settle(centroid.velocity.x)
        }
    }
}
