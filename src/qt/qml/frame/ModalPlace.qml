// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// One of the screens over the panes. Only the topmost can be used.
FocusScope {
    id: root

    required property Modal modal
    required property int index
    required property ModalStack stack
    required property EdgePull pull
    readonly property bool covers: (place.item as ModalSheet)?.covers ?? false
    readonly property bool topmost: index === stack.count - 1

    enabled: topmost && !modal.leaving
    focus: topmost
    Keys.onEscapePressed: modal.close()
    Keys.onBackPressed: modal.close()
    Component.onCompleted: modal.attach()

    Loader {
        id: place
        anchors.fill: parent
        focus: true
        sourceComponent: root.modal.sideMenu ? menu : sheet
        onLoaded: item.focus = true
    }
    Component {
        id: menu

        SideMenu {
            modal: root.modal
            pull: root.pull
        }
    }
    Component {
        id: sheet

        ModalSheet {
            modal: root.modal
            fullScreen: root.stack.fullScreen
        }
    }
}
