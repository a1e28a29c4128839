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
    required property color accent
    property bool dark: false
    property real textScale: 1
    property bool reducedMotion: false

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
        enabled: !root.presenter.asking
        focus: true
        onLoaded: item.focus = true
    }
    Loader {
        anchors.fill: parent
        active: root.presenter.asking
        source: active ? "qrc:/Lumora/QuestionDialog.qml" : ""
        onLoaded: (item as QuestionDialog).presenter = root.presenter
    }
}
