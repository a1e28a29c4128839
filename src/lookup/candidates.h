// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "lookup/catalogue.h"
#include "lookup/phrase.h"
#include "lookup/reading.h"

#include <string_view>
#include <vector>

namespace lumora::lookup {

/// A reading, and what its rank depends on besides its kind.
struct Candidate {
    Reading reading;
    /// Within the kind, before the verb's use counts: less is better.
    int penalty = 0;
    int use = 0;
    /// How common the tense of its likeliest place is; less is more common.
    int tense = 0;
    bool sameLetters = false;
};

/// Collects what a text may mean. A failure of the database ends the collecting
/// and is kept.
class Candidates {
public:
    Candidates(Catalogue& catalogue, platform::Database& database)
        : catalogue_{catalogue}, database_{database}
    {}

    /// Adds one reading for each form among the matches.
    void add(std::uint32_t verb, const std::vector<RowMatch>& matches, MatchKind kind, int penalty);
    /// Adds the infinitive of a verb.
    void addInfinitive(std::uint32_t verb, MatchKind kind, int penalty);
    /// Adds the forms that equal the phrase, exactly or folded.
    void addForms(const Phrase& phrase, MatchKind kind, int penalty);

    /// Leaves laver (se) out of "je lave", and laver of "je me lave". Of a form alone,
    /// without a subject, the pronominal verb is left in where it is shown so.
    void dropWrongPronouns(bool alone);

    /// The rows of a verb; null after a failure.
    Catalogue::Rows rows(std::uint32_t verb);
    Catalogue& catalogue() { return catalogue_; }

    bool empty() const { return found_.empty(); }
    std::vector<Candidate>& found() { return found_; }
    const platform::Result<void>& state() const { return state_; }

    /// The best few, each verb and form once, and each verb once among the guesses.
    std::vector<Reading> ranked() &&;

private:
    Catalogue& catalogue_;
    platform::Database& database_;
    std::vector<Candidate> found_;
    platform::Result<void> state_;
};

/// Adds what the tokens may mean with a letter or two wrong. A short word without a
/// subject resembles many forms by chance, so it is mostly taken for infinitives only.
void addTypos(const std::vector<Phrase>& phrases, Candidates& candidates);
/// Adds what sounds alike. `sounds` has looseSound of each word of the index.
void addBySound(const std::vector<Phrase>& phrases, const std::vector<std::uint16_t>& sounds,
                Candidates& candidates);

/// The verbs in a longer text, those with a subject first.
void addPartsOfSentence(const std::vector<std::string>& tokens, Candidates& candidates);

} // namespace lumora::lookup
