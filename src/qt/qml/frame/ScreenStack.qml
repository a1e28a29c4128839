// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtQuick.Controls.Basic
import Lumora

// A stack of screens whose top one shows. It follows the list of screens: what
// stays at the bottom stays as it is.
StackView {
    id: root

    property var screens: []
    // Owns the panes; null for screens that are in no pane.
    property SplitScreen split: null
    property bool wide: false
    // The radius of the upper corners.
    property real cornerRadius: 0

    signal backRequested

    function follow() {
        let same = 0;
        while (same < depth && same < screens.length && get(same, StackView.ForceLoad)?.screen === screens[same])
            ++same;
        if (same === depth && same === screens.length)
            return;
        // A screen that moves from pane to pane does not slide.
        const moved = split?.isRearranging() ?? false;
        if (same === 0 && depth === 1 && screens.length === 1 && !moved && canReuse(currentItem as ScreenPage, screens[0])) {
            (currentItem as ScreenPage).reuse(screens[0]);
            return;
        }
        const animated = depth > 0 && same > 0 && screens.length > 0 && !moved;
        const kind = animated ? undefined : StackView.Immediate;
        if (same === 0) {
            clear();
        } else if (same < depth) {
            // Sliding back only makes sense when nothing new comes.
            pop(get(same - 1), same === screens.length ? kind : StackView.Immediate);
        }
        for (let i = same; i < screens.length; ++i)
            push(screens[i].page, {
                "screen": screens[i],
                "canGoBack": i > 0,
                "wide": wide
            }, kind);
    }

    // What a page is made of takes longer to make than to fill anew.
    function canReuse(page, screen) {
        return page !== null && page.reusable && String(page.screen.page) === String(screen.page);
    }

    Accessible.name: currentItem?.screen?.title ?? ""
    onScreensChanged: follow()
    Component.onCompleted: follow()

    Connections {
        target: root.currentItem
        function onBackRequested() {
            root.backRequested();
        }
    }

    pushEnter: Transition {
        NumberAnimation {
            property: "x"
            from: root.width
            to: 0
            duration: Theme.quick
            easing.type: Easing.OutCubic
        }
    }
    pushExit: Transition {
        NumberAnimation {
            property: "x"
            from: 0
            to: -root.width / 4
            duration: Theme.quick
            easing.type: Easing.OutCubic
        }
    }
    popEnter: Transition {
        NumberAnimation {
            property: "x"
            from: -root.width / 4
            to: 0
            duration: Theme.quick
            easing.type: Easing.OutCubic
        }
    }
    popExit: Transition {
        NumberAnimation {
            property: "x"
            from: 0
            to: root.width
            duration: Theme.quick
            easing.type: Easing.OutCubic
        }
    }
}
