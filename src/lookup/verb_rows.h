// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "lookup/phrase.h"
#include "lookup/reading.h"
#include "platform/base/error.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace lumora::platform {
class Database;
}

namespace lumora::lookup {

/// One spelling of a row, as phrases are held against it.
struct RowSpelling {
    /// Without pronouns and agreement, tidied and folded: the form, or the
    /// participle.
    std::string word;
    std::string folded;
    /// The same of the auxiliary; empty for a simple form.
    std::string auxiliary;
    std::string foldedAuxiliary;
};

struct VerbRow {
    Place place;
    std::vector<RowSpelling> spellings;
    Persons persons = kAnyPerson;
    /// With "que".
    bool conjunction = false;
};

/// "suis allé": a word of the verb behind the auxiliary of the spelling, if any.
std::string formOf(const RowSpelling& spelling, const std::string& word);

/// A phrase and a row that agree.
struct RowMatch {
    const VerbRow* row = nullptr;
    /// The one of the row's that was meant.
    const RowSpelling* spelling = nullptr;
    /// "évanouis", "suis allée": with the accents it has, whatever was typed.
    std::string form;
    /// The phrase has these letters, but for their case.
    bool sameLetters = false;
};

/// The rows of one verb as its page shows them.
class VerbRows {
public:
    static platform::Result<VerbRows> read(platform::Database& database, std::int64_t verb,
                                           bool pronominal, bool en);

    const std::vector<VerbRow>& rows() const { return rows_; }

    /// The rows that the phrase may mean, those with its mood only where some have
    /// it: "que j'aille" is no indicative.
    std::vector<RowMatch> matches(const Phrase& phrase) const;
    /// The rows that sound as the phrase, or would with é and è for e.
    std::vector<RowMatch> soundAlikes(const Phrase& phrase) const;
    std::vector<RowMatch> nearSoundAlikes(const Phrase& phrase) const;

    /// Whether the verb has its reflexive pronoun though the phrase has none, or
    /// the other way round.
    bool differsInPronoun(const Phrase& phrase) const;

private:
    bool agrees(const Phrase& phrase, const VerbRow& row) const;
    /// The rows that agree with the phrase but for the spelling, which is tested.
    std::vector<RowMatch> spelledAs(const Phrase& phrase,
                                    const std::function<bool(const RowSpelling&)>& isMeant) const;
    /// The participle of that spelling, agreed; null for another word.
    const RowSpelling* participleOf(std::string_view folded) const;

    std::vector<VerbRow> rows_;
    /// Of the verb, in each agreement.
    std::vector<RowSpelling> participles_;
    bool pronominal_ = false;
    bool en_ = false;
};

} // namespace lumora::lookup
