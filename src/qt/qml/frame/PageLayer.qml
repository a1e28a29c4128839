// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick

// One of the layers that lie over each other in the window: a page that is made
// when it is wanted, and goes when it is not.
Loader {
    id: root

    // The file's name without its ending; empty for none.
    required property string page
    // The values of the page's required properties, by their names. They do not
    // depend on what makes the page wanted.
    required property var given
    // Stays, empty, once it is made.
    property bool kept: false
    // Takes the keyboard from whatever has it.
    property bool grabsKeyboard: false
    readonly property bool wanted: page !== ""

    function takeKeyboard() {
        (item as Item)?.forceActiveFocus();
    }

    anchors.fill: parent
    focus: wanted && enabled
    onPageChanged: {
        if (kept && status !== Loader.Null)
            return;
        // "wanted" may not have followed yet.
        if (page !== "")
            setSource("qrc:/Lumora/" + page + ".qml", given);
        else
            source = "";
    }
    onLoaded: {
        if (grabsKeyboard)
            takeKeyboard();
        else
            (item as Item).focus = true;
    }
}
