// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

// "j'" stands right before its form, "je" has a space after it, and no pronoun
// needs none. Mustache cannot look into a text, so the section "elided" answers
// for the pronoun at hand.
(function () {
    var lookup = Mustache.Context.prototype.lookup;
    Mustache.Context.prototype.lookup = function (name) {
        return name === "elided" ? /(^|['\u2019])$/.test(lookup.call(this, "pronoun"))
                                 : lookup.call(this, name);
    };
})();
