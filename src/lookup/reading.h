// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lumora::lookup {

/// How a text was understood, the surest kind first.
enum class MatchKind {
    /// As written.
    Exact,
    /// Without regard to case, accents, ligatures, blanks, apostrophes and dashes.
    Folded,
    /// With a pronoun, a conjunction, a negation, an agreement.
    Phrase,
    /// By a translation.
    Meaning,
    /// With a letter or two missing, too many, wrong or swapped.
    Typo,
    /// Spelt as it sounds.
    Sound,
    /// As a part of a longer text.
    PartOfText,
};

/// "exact", "folded" and so on.
std::string_view nameOf(MatchKind kind);

/// Where a form stands in the table of its verb.
struct Place {
    /// A tense as the database names it: "indicatifPresent".
    std::string tense;
    /// The row within the verb, from 1.
    std::int64_t order = 0;
    /// As the row shows it: "que j'", "nous nous". Empty for imperatives,
    /// participles and infinitives.
    std::string pronoun;
    /// The whole form of the row: "suis allé(e)".
    std::string form;
};

/// What a text may mean: a verb, one of its forms and all the places where that
/// form stands.
struct Reading {
    std::int64_t verb = -1;
    /// As the lists show it: "évanouir (s')".
    std::string headword;
    /// The form that was meant: "évanouis". The infinitive for a meaning.
    std::string form;
    /// The likeliest first; empty where the database has no row of the verb.
    std::vector<Place> places;
    MatchKind kind = MatchKind::Exact;
};

} // namespace lumora::lookup
