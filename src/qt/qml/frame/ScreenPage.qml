// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtQuick.Controls.Basic
import Lumora

// What every page of a stack has: its screen's bar above its content.
FocusScope {
    id: root

    required property AppScreen screen
    property bool canGoBack: false
    // Stands beside another pane.
    property bool wide: false
    property color color: Theme.background
    property real cornerRadius: StackView.view?.cornerRadius ?? 0
    // Shown small, for a look only.
    property bool preview: false
    // The bar's menu button, beside the screen's own buttons.
    property Component barMenu: null
    // The parts of the page between which F6 moves the keyboard.
    property list<Item> parts: [area]
    // Whether it can show another screen of its kind in place of this one.
    property bool reusable: false
    default property alias content: area.data

    signal backRequested
    // It is about to show that screen; now it shows it.
    signal reusing(AppScreen other)
    signal reused

    function reuse(other) {
        const before = screen;
        reusing(other);
        other.attach(root);
        screen = other;
        before.detach(root);
        reused();
    }

    Component.onCompleted: screen.attach(root)

    Rectangle {
        anchors.fill: parent
        anchors.topMargin: root.cornerRadius
        color: root.color
    }
    NavigationBar {
        id: bar
        width: parent.width
        screen: root.screen
        canGoBack: root.canGoBack
        wide: root.wide
        hasButtons: !root.preview
        menu: root.preview ? null : root.barMenu
        cornerRadius: root.cornerRadius
        onBackRequested: root.backRequested()
    }
    FocusScope {
        id: area
        focus: true
        anchors.top: bar.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        clip: true
    }
}
