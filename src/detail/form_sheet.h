// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/conjugation.h"
#include "detail/verb_card.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace lumora::detail {

class RowSounds;

/// Which row of the tables a form of a verb is in: the mood's segment, the tense's position in
/// the mood, the row in the tense, all from 0.
struct RowPlace {
    int segment = 0;
    int tense = 0;
    int row = 0;

    friend bool operator==(const RowPlace&, const RowPlace&) = default;
};

/// A name of a tense in the chosen set, and in the other set where it differs.
struct TenseName {
    std::string title;
    std::string otherTitle;
};

/// What can be said of one form.
struct FormSheet {
    /// As one says it: "j'irai", "il/elle/on va".
    std::string row;
    std::string form;
    /// Of the whole row; may be empty.
    std::string ipa;
    TenseName tense;
    /// "third person plural"; empty where the row has no pronoun.
    std::string person;

    struct Other {
        RowPlace place;
        std::string row;
        std::string tense;
    };
    /// The other rows of this verb that read the same, in the order of the moods.
    std::vector<Other> others;
};

/// What a tense is for.
struct TenseNote {
    TenseName tense;
    std::string use;
    /// In French; its translation is empty where French is the language of the
    /// texts.
    std::string example;
    std::string translation;
};

/// Null where the verb has no such row.
std::shared_ptr<const data::Conjugation> formAt(const data::Verb& verb, const RowPlace& place);

/// None where the verb has no such row.
std::optional<FormSheet> formSheet(const data::Verb& verb, const RowPlace& place,
                                   const RowSounds& sounds, const Wording& wording);

/// None where the mood has no tense at that position.
std::optional<TenseNote> tenseNote(int segment, int tense, const Wording& wording);

} // namespace lumora::detail
