// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// The sheets of a verb's page, made when one is asked for.
Item {
    id: root

    required property VerbDetailScreen screen
    property bool wide: false
    // Whether the tenses stand as squares.
    property bool squares: false

    // A form is to be shown at another place, in the mood that is chosen now.
    signal placeWanted(int tense, int line)

    function askForm(tense, line) {
        const sheet = screen.formSheet(tense, line);
        if (sheet.row !== "")
            show("FormSheet", {
                "screen": screen,
                "sheet": sheet,
                "squares": squares,
                "room": Window.contentItem,
                "wide": wide
            });
    }
    function askTense(tense) {
        const note = screen.tenseNote(tense);
        if (note.title !== "")
            show("TenseSheet", {
                "note": note,
                "room": Window.contentItem,
                "wide": wide
            });
    }
    // Also one that is closed: it knows the screen that it was made for.
    function forget() {
        sheet.source = "";
    }
    function show(page, given) {
        sheet.setSource("qrc:/Lumora/" + page + ".qml", given);
        sheet.sheet.open();
    }

    Loader {
        id: sheet

        // Untyped: naming its type would load it before it is needed.
        readonly property var sheet: item
    }
    Connections {
        target: sheet.item
        ignoreUnknownSignals: true
        function onFollowed(segment, tense, line) {
            if (segment !== root.screen.selectedMood)
                root.screen.selectMood(segment);
            root.placeWanted(tense, line);
        }
        function onTenseAsked(tense) {
            sheet.sheet.close();
            root.askTense(tense);
        }
    }
}
