// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "lookup/phrase.h"
#include "lookup/reading.h"
#include "platform/base/error.h"

#include <cstdint>
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
    /// Folded; empty for a simple form.
    std::string auxiliary;
};

struct VerbRow {
    Place place;
    std::vector<RowSpelling> spellings;
    Persons persons = kAnyPerson;
    /// With "que".
    bool conjunction = false;
};

/// A phrase and a row that agree.
struct RowMatch {
    const VerbRow* row = nullptr;
    /// "évanouis", "suis allée".
    std::string form;
    /// The form is the row's letter by letter, but for its case.
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
    /// The rows that sound as the phrase.
    std::vector<RowMatch> soundAlikes(const Phrase& phrase) const;

    /// Whether the verb has its reflexive pronoun though the phrase has none, or
    /// the other way round.
    bool differsInPronoun(const Phrase& phrase) const;

private:
    bool agrees(const Phrase& phrase, const VerbRow& row) const;
    bool isParticiple(std::string_view folded) const;

    std::vector<VerbRow> rows_;
    /// Of the verb, agreed, folded.
    std::vector<std::string> participles_;
    bool pronominal_ = false;
    bool en_ = false;
};

} // namespace lumora::lookup
