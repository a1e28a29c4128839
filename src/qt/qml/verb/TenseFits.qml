// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// How the lines of a tense stand in the room there is: in one size, the pronouns
// in a column before the forms, or above them where that is read better.
QtObject {
    id: root

    required property VerbDetailScreen screen
    // The width for a pronoun and its form.
    required property real room
    // The font size of the forms where they have room, in pixels.
    required property int fullSize
    // The height of one line of the tense; 0 where it grows with its text.
    property real lineHeight: 0
    // Counts the reloads of a table, whose rows are not counted themselves.
    property int revision: 0
    readonly property int smallestSize: 12
    readonly property int measuredSize: 40
    // How much smaller a pronoun is than its form.
    readonly property real pronounShare: 0.88
    readonly property real blankShare: 0.3
    // The height of a row as a share of its font size, and the gap between two forms.
    readonly property real rowShare: 1.17
    readonly property int rowGap: 5
    // The results so far, by tense: those of the newest generation of texts.
    readonly property var cache: ({})

    readonly property FontMetrics plain: FontMetrics {
        font.pixelSize: root.measuredSize
    }
    readonly property FontMetrics bold: FontMetrics {
        font.pixelSize: root.measuredSize
        font.weight: Font.Bold
    }

    // How one tense of the chosen mood fits; another generation has other texts.
    function of(tense, generation) {
        const known = cache[tense];
        const same = known?.generation === generation;
        if (!same || known.room !== room || known.fullSize !== fullSize)
            cache[tense] = fit(same ? known.sizes : measure(tense), generation);
        return cache[tense];
    }
    // The longest by characters are the widest, or nearly so.
    function longest(texts) {
        return texts.reduce((one, other) => other.length > one.length ? other : one, "");
    }
    function measure(tense) {
        const forms = screen.formsOf(tense);
        const leading = screen.leadingTextsOf(tense);
        const length = longest(leading).length;
        const longOnes = leading.filter((text, place) => text !== "" && text.length >= length - 2 && leading.indexOf(text) === place);
        const words = longest(forms).split(" ").map(word => bold.advanceWidth(word));
        const word = longest(forms.join(" ").split(" "));
        return {
            "pronoun": longOnes.reduce((width, text) => Math.max(width, plain.advanceWidth(text)), 0) * 1.04,
            "words": words,
            "widest": Math.max(bold.advanceWidth(word), ...words) * 1.02
        };
    }
    // How many rows a form takes.
    function rowsOf(words, scale, width) {
        let count = 1;
        let x = 0;
        for (const word of words) {
            const needed = word * scale;
            if (x > 0 && x + blankShare * measuredSize * scale + needed > width) {
                ++count;
                x = 0;
            }
            x += (x > 0 ? blankShare * measuredSize * scale : 0) + needed;
        }
        return count;
    }
    // The largest size with the pronouns in a column before the forms, or
    // above them.
    function largest(sizes, stacked) {
        for (let size = fullSize; size > smallestSize; --size) {
            const scale = size / measuredSize;
            const column = stacked || sizes.pronoun === 0 ? 0 : sizes.pronoun * scale * pronounShare + blankShare * size;
            const rows = rowsOf(sizes.words, scale, room - column) + (stacked ? 1 : 0);
            if (sizes.widest * scale <= room - column && (lineHeight === 0 || rows * size * rowShare + rowGap <= lineHeight))
                return size;
        }
        return smallestSize;
    }
    function fit(sizes, generation) {
        const beside = largest(sizes, false);
        const above = sizes.pronoun > 0 ? largest(sizes, true) : 0;
        const stacked = above > 1.25 * beside;
        const size = stacked ? above : beside;
        return {
            "generation": generation,
            "room": room,
            "fullSize": fullSize,
            "sizes": sizes,
            "size": size,
            "pronounSize": Math.max(smallestSize, Math.round(size * pronounShare)),
            "pronounWidth": Math.ceil(sizes.pronoun * size / measuredSize * pronounShare),
            "blank": Math.round(blankShare * size),
            "stacked": stacked
        };
    }
}
