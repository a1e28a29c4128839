// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound
import QtQuick
import Lumora

// The screens over the panes, each over the one before.
FocusScope {
    id: root

    required property ModalStack stack
    // The finger that pulls the side menu in.
    required property EdgePull pull

    Repeater {
        model: root.stack

        FocusScope {
            id: layer

            required property Modal modal
            required property int index
            readonly property bool topmost: index === root.stack.count - 1

            anchors.fill: parent
            enabled: topmost && !modal.leaving
            focus: topmost
            Keys.onEscapePressed: modal.close()
            Keys.onBackPressed: modal.close()
            Component.onCompleted: modal.attach()

            Loader {
                anchors.fill: parent
                focus: true
                sourceComponent: layer.modal.sideMenu ? menu : sheet
                onLoaded: item.focus = true
            }
            Component {
                id: menu

                SideMenu {
                    modal: layer.modal
                    pull: root.pull
                }
            }
            Component {
                id: sheet

                ModalSheet {
                    modal: layer.modal
                    fullScreen: root.stack.fullScreen
                }
            }
        }
    }
}
