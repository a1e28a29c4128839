// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// List and detail, side by side where they fit.
FocusScope {
    id: root

    required property QtPresenter presenter
    readonly property SplitScreen split: presenter.panes
    readonly property bool twoPanes: !split.collapsed
    readonly property bool homeOnTop: split.primary.length === 1 && !split.primaryHidden
    readonly property int listWidth: Math.round(Math.max(320, Math.min(360, width * 0.34), Math.min(480, width * 0.19)))

    // A pane that goes takes the keyboard with it.
    function keepKeyboard() {
        if (!enabled)
            primary.focus = true;
        else if (!activeFocus || !primary.activeFocus && !twoPanes)
            primary.forceActiveFocus();
    }

    function partsOf(pane) {
        const page = pane?.visible ? pane.currentItem : null;
        return Array.from(page?.parts ?? []);
    }
    // To the next part of the screens in sight, or the one before.
    function changePart(steps) {
        const parts = partsOf(primary).concat(partsOf(secondary.item));
        const now = parts.findIndex(part => part.activeFocus);
        if (parts.length > 0)
            parts[(Math.max(now, steps < 0 ? 0 : -1) + steps + parts.length) % parts.length].forceActiveFocus(Qt.TabFocusReason);
    }

    onTwoPanesChanged: Qt.callLater(keepKeyboard) // qmllint disable

    ScreenStack {
        id: primary
        objectName: "primaryPane"
        focus: true
        width: root.twoPanes ? root.listWidth : root.width
        height: root.height
        x: root.twoPanes && root.split.primaryHidden ? -width - 1 : 0
        visible: x > -width
        split: root.split
        screens: root.split.primary
        onBackRequested: root.split.back()

        Behavior on x {
            enabled: root.twoPanes
            NumberAnimation {
                duration: Theme.quick
                easing.type: Easing.OutCubic
            }
        }
    }
    Rectangle {
        id: divider
        visible: root.twoPanes
        x: primary.x + primary.width
        width: 1
        height: root.height
        color: Theme.separator
    }
    Loader {
        id: secondary
        active: root.twoPanes
        anchors.left: divider.right
        anchors.right: parent.right
        height: root.height

        sourceComponent: ScreenStack {
            objectName: "secondaryPane"
            wide: true
            screens: root.split.secondary
            onBackRequested: root.split.back()
        }
    }
    Keys.onEscapePressed: event => event.accepted = root.split.back()
    Keys.onBackPressed: event => event.accepted = root.split.back()

    Shortcut {
        sequences: [StandardKey.Find] // qmllint disable unqualified
        enabled: root.enabled
        onActivated: {
            root.split.backToHome();
            root.split.home.focusSearch();
        }
    }
    Shortcut {
        sequence: "F6"
        enabled: root.enabled
        onActivated: root.changePart(1)
    }
    Shortcut {
        sequence: "Shift+F6"
        enabled: root.enabled
        onActivated: root.changePart(-1)
    }
    Shortcut {
        sequence: "Ctrl+,"
        enabled: root.enabled
        onActivated: root.split.home.showOptions()
    }
    Shortcut {
        sequence: "F10"
        enabled: root.enabled
        onActivated: root.split.home.press("menu")
    }
    Instantiator {
        model: root.split.home?.tabs

        Shortcut {
            required property int index
            required property homeTab modelData

            sequence: "Ctrl+" + (index + 1)
            enabled: root.enabled
            onActivated: {
                // The way back may take this shortcut away with the tabs.
                const split = root.split;
                const tag = modelData.tag;
                split.backToHome();
                split.home.selectTab(tag);
            }
        }
    }
}
