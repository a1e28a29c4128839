// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtQuick.Window
import Lumora

// The window: one pane or two, and whatever is asked on top of them.
Window {
    id: root

    // Null until the launch is through; until then the window shows its colours.
    property SplitScreen split: null
    required property QtPresenter presenter
    required property QtFileChooser files
    required property QtShareSheet share
    required property color accent
    readonly property ModalStack modals: presenter.modals
    property bool dark: false
    property real textScale: 1
    property bool reducedMotion: false

    // By the names that the theme has for them.
    function colourBars(colours) {
        for (const name in colours)
            Theme[name] = colours[name];
    }

    // What goes while it has the keyboard leaves it with nobody.
    function giveKeyboard() {
        if (activeFocusItem !== contentItem)
            return;
        const layer = [question, fileLayer, shareLayer, previewLayer, modalLayer].find(layer => layer.wanted) ?? panes;
        layer.item?.forceActiveFocus();
    }

    onActiveFocusItemChanged: if (activeFocusItem === contentItem)
        Qt.callLater(giveKeyboard)
    minimumWidth: 280
    minimumHeight: 360
    visible: true
    title: "Lumora"
    color: Theme.background
    onWidthChanged: root.split?.setWidth(width)
    onSplitChanged: {
        if (root.split !== null) {
            panes.setSource("qrc:/Lumora/Panes.qml", {
                split: root.split
            });
        }
    }

    Binding {
        target: Theme
        property: "pixelRatio"
        value: Screen.devicePixelRatio
    }
    Binding {
        target: Theme
        property: "dark"
        value: root.dark
    }
    Binding {
        target: Theme
        property: "textScale"
        value: root.textScale
    }
    Binding {
        target: Theme
        property: "reducedMotion"
        value: root.reducedMotion
    }
    Binding {
        target: Theme
        property: "accentPrimary"
        value: root.accent
    }
    Rectangle {
        width: parent.width
        height: Theme.barHeight
        color: Theme.barBackground
        visible: panes.status !== Loader.Ready
    }
    Loader {
        id: panes
        anchors.fill: parent
        enabled: !root.presenter.asking && root.modals.count === 0 && !previewLayer.wanted && !shareLayer.wanted && !fileLayer.wanted
        focus: enabled
        onLoaded: item.focus = true
    }
    EdgePull {
        id: pull
        height: parent.height
        enabled: active || panes.enabled && panes.item !== null && panes.item.homeOnTop
        onBegun: root.split.home.press("menu")
    }
    Loader {
        id: modalLayer

        readonly property bool wanted: root.modals.count > 0

        anchors.fill: parent
        enabled: wanted && !root.presenter.asking && !fileLayer.wanted
        focus: enabled
        onWantedChanged: if (status === Loader.Null)
            setSource("qrc:/Lumora/ModalLayer.qml", {
                "stack": root.modals,
                "pull": pull
            })
        onLoaded: item.focus = true
    }
    Loader {
        id: previewLayer

        readonly property bool wanted: root.presenter.preview.screen !== null

        anchors.fill: parent
        enabled: !root.presenter.asking
        focus: wanted && enabled
        onWantedChanged: {
            if (wanted)
                setSource("qrc:/Lumora/VerbPreview.qml", {
                    "preview": root.presenter.preview
                });
            else
                source = "";
        }
        onLoaded: item.forceActiveFocus()
    }
    Loader {
        id: shareLayer

        readonly property bool wanted: root.share.open

        anchors.fill: parent
        enabled: !root.presenter.asking
        focus: wanted && enabled
        onWantedChanged: {
            if (wanted)
                setSource("qrc:/Lumora/ShareSheet.qml", {
                    "share": root.share,
                    "wide": Qt.binding(() => !root.modals.fullScreen)
                });
            else
                source = "";
        }
        onLoaded: item.forceActiveFocus()
    }
    Loader {
        id: fileLayer

        readonly property bool wanted: root.files.asking

        anchors.fill: parent
        enabled: !root.presenter.asking
        focus: wanted && enabled
        onWantedChanged: {
            if (wanted)
                setSource("qrc:/Lumora/FileQuestion.qml", {
                    "chooser": root.files
                });
            else
                source = "";
        }
        onLoaded: item.forceActiveFocus()
    }
    Loader {
        id: question

        readonly property bool wanted: root.presenter.asking

        anchors.fill: parent
        focus: wanted
        onWantedChanged: {
            if (wanted)
                setSource("qrc:/Lumora/QuestionDialog.qml", {
                    "presenter": root.presenter
                });
            else
                source = "";
        }
        onLoaded: item.forceActiveFocus()
    }
}
