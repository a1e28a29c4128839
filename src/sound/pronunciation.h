// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lumora::sound {

/// What a table of conjugation says of one of its rows.
struct Row {
    /// Of the row's verb, without "se" or "s'".
    std::string_view infinitive;
    /// "je", "qu'il/elle/on", "nous nous"; may be empty.
    std::string_view pronoun;
    /// "vais", "paie, paye", "suis allé(e)", "s'évanouir".
    std::string_view form;
    /// The tense as the database names it: "indicatifPresent".
    std::string_view tense;
    /// Whether the verb begins with a sound before which nothing is elided or
    /// linked, as haïr does.
    bool aspirated = false;
};

/// A word of a text that is spoken.
struct SpokenWord {
    /// Where the word is in the text, in bytes.
    std::size_t begin = 0;
    std::size_t length = 0;
    /// IPA, with the consonant that a liaison adds at its end.
    std::string ipa;
    /// A liaison follows.
    bool linked = false;
};

/// The words of a row that was made one text, as it is read aloud: "il ou elle
/// ou on va", "j'ai parlé", "méfiez-vous". Words end at spaces and hyphens, and
/// after apostrophes. Double forms are parted by ", ". Endings in brackets, as
/// in "allé(e)", belong to their word and are not said.
///
/// Only tense, aspirated and infinitive of the row count. Empty where the tense
/// is not known.
std::vector<SpokenWord> spokenWords(std::string_view text, const Row& row);

/// The row in IPA, in the broad transcription of dictionaries: "nuz‿avɔ̃".
///
/// Of several pronouns the first is said; brackets are left out. Double forms
/// are parted by ", ", each with the pronoun. Empty where the tense is not known.
std::string ipa(const Row& row);

} // namespace lumora::sound
