// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtQuick.Window
import Lumora

// The window: one pane or two, and whatever is asked on top of them.
Window {
    id: root

    required property Appearance appearance
    required property QtPresenter presenter
    required property QtFileChooser files
    required property QtShareSheet share
    // Null until the launch is through; until then the window shows its colours.
    readonly property SplitScreen split: presenter.panes
    readonly property ModalStack modals: presenter.modals
    // Untyped: naming its type would load it before it is needed.
    readonly property var modalPages: modalLayer.item
    property bool keysShown: false

    // Shows a sentence for a moment, over everything.
    function tell(sentence) {
        notice.tell(sentence);
    }
    // When an item with the keyboard focus goes, Qt gives the focus to no other item.
    function giveKeyboard() {
        if (activeFocusItem !== contentItem)
            return;
        for (const layer of [keysLayer, questionLayer, fileLayer, shareLayer, previewLayer, modalLayer]) {
            if (layer.wanted) {
                layer.takeKeyboard();
                return;
            }
        }
        panes.takeKeyboard();
    }

    onActiveFocusItemChanged: if (activeFocusItem === contentItem)
        Qt.callLater(giveKeyboard) // qmllint disable
    minimumWidth: 280
    minimumHeight: 360
    visible: true
    title: "Lumora"
    color: Theme.background
    palette.toolTipBase: Theme.raised
    palette.toolTipText: Theme.text
    onWidthChanged: root.split?.setWidth(width)

    Binding {
        target: Theme
        property: "pixelRatio"
        value: Screen.devicePixelRatio
    }
    Binding {
        target: Theme
        property: "appearance"
        value: root.appearance
    }
    Rectangle {
        width: parent.width
        height: Theme.barHeight
        color: Theme.barBackground
        visible: panes.status !== Loader.Ready
    }
    PageLayer {
        id: panes
        page: root.split === null ? "" : "Panes"
        given: ({
                presenter: root.presenter
            })
        enabled: !root.keysShown && !root.presenter.asking && root.modals.count === 0 && !previewLayer.wanted && !shareLayer.wanted && !fileLayer.wanted
        focus: enabled
        // Out of a screen reader's sight too.
        visible: !(root.modalPages?.covers ?? false)
    }
    Shortcut {
        sequences: ["Ctrl+Q", "Ctrl+W"]
        onActivated: root.close()
    }
    Shortcut {
        sequence: "F1"
        enabled: root.split !== null
        onActivated: root.keysShown = !root.keysShown
    }
    EdgePull {
        id: pull
        height: parent.height
        enabled: active || panes.enabled && ((panes.item as Panes)?.homeOnTop ?? false)
        onBegun: root.split.home.press("menu")
    }
    PageLayer {
        id: modalLayer
        page: root.modals.count === 0 ? "" : "ModalLayer"
        kept: true
        given: ({
                stack: root.modals,
                pull: pull
            })
        enabled: wanted && !root.keysShown && !root.presenter.asking && !fileLayer.wanted
        focus: enabled
    }
    PageLayer {
        id: previewLayer
        page: root.presenter.preview.screen === null ? "" : "VerbPreview"
        given: ({
                preview: root.presenter.preview
            })
        enabled: !root.keysShown && !root.presenter.asking
        grabsKeyboard: true
    }
    PageLayer {
        id: shareLayer
        page: root.share.open ? "ShareSheet" : ""
        given: ({
                share: root.share,
                modals: root.modals
            })
        enabled: !root.keysShown && !root.presenter.asking
        grabsKeyboard: true
    }
    PageLayer {
        id: fileLayer
        page: root.files.asking ? "FileQuestion" : ""
        given: ({
                chooser: root.files
            })
        enabled: !root.keysShown && !root.presenter.asking
        grabsKeyboard: true
    }
    PageLayer {
        id: questionLayer
        page: !root.presenter.asking ? "" : root.presenter.sheet ? "ActionSheet" : "AlertDialog"
        given: ({
                presenter: root.presenter
            })
        enabled: !root.keysShown
        grabsKeyboard: true
    }
    PageLayer {
        id: keysLayer
        page: root.keysShown ? "KeyHelp" : ""
        given: ({
                window: root
            })
        grabsKeyboard: true
    }
    NoticeBar {
        id: notice
        anchors.horizontalCenter: parent.horizontalCenter
        y: parent.height - height - Theme.barHeight - 2 * Theme.margin
    }
    Connections {
        target: root.share
        function onTold(sentence) {
            root.tell(sentence);
        }
    }
}
