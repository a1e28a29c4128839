// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/lookup.h"

#include "lookup/candidates.h"
#include "lookup/spelling.h"
#include "text/text.h"

#include <algorithm>
#include <string>
#include <utility>

namespace lumora::lookup {

namespace {

/// Longer texts are not looked at.
constexpr std::size_t kLongestText = 1000;

/// Without what tells how a person typed a form: brackets of an agreement too.
std::string plain(std::string_view text)
{
    return foldedWord(tidied(withoutAgreement(text)));
}

/// Says of each candidate how it was understood, and leaves out what differs by an
/// accent where something has the same letters.
void setKinds(std::string_view text, std::string_view tidy, Candidates& candidates)
{
    auto& found = candidates.found();
    const auto same = [](const Candidate& candidate) { return candidate.sameLetters; };
    if (std::any_of(found.begin(), found.end(), same)) {
        found.erase(std::remove_if(found.begin(), found.end(),
                                   [&](const Candidate& candidate) { return !same(candidate); }),
                    found.end());
    }
    const auto typed = plain(text);
    for (auto& [reading, penalty, use, tense, sameLetters] : found) {
        const auto isForm = [&](const Place& place) { return place.form == text; };
        const auto isPlainForm = [&](const Place& place) { return plain(place.form) == typed; };
        const auto& places = reading.places;
        // Of compound forms the agreement may be another than the table's.
        const bool simple = reading.form.find(' ') == std::string::npos;
        if ((simple && reading.form == text) || reading.headword == text ||
            std::any_of(places.begin(), places.end(), isForm)) {
            reading.kind = MatchKind::Exact;
        } else if ((simple && foldedWord(reading.form) == foldedWord(tidy)) ||
                   foldedWord(tidied(reading.headword)) == foldedWord(tidy) ||
                   std::any_of(places.begin(), places.end(), isPlainForm)) {
            reading.kind = MatchKind::Folded;
        }
    }
}

void addMeanings(const Meanings& meanings, std::string_view tidy, bool whole,
                 Candidates& candidates)
{
    // The sense counts for less than how common the verb is: "be" is être.
    constexpr int kPartOfSense = 100;
    constexpr std::size_t kMost = 5;

    auto matches = meanings.find(tidy);
    const auto key = [&](const Meanings::Match& match) {
        const auto& verb = candidates.catalogue().verb(candidates.catalogue().numberOf(match.verb));
        return std::make_tuple(match.rank >= kPartOfSense, verb.use, match.rank, verb.id);
    };
    matches.erase(std::remove_if(matches.begin(), matches.end(),
                                 [&](const auto& match) {
                                     return candidates.catalogue().numberOf(match.verb) ==
                                                candidates.catalogue().verbs().size() ||
                                            (whole && match.rank >= kPartOfSense);
                                 }),
                  matches.end());
    std::stable_sort(matches.begin(), matches.end(),
                     [&](const auto& left, const auto& right) { return key(left) < key(right); });
    matches.resize(std::min(matches.size(), kMost));
    int penalty = 0;
    for (const auto& match : matches) {
        candidates.addInfinitive(candidates.catalogue().numberOf(match.verb), MatchKind::Meaning,
                                 penalty++);
    }
}

} // namespace

platform::Result<void> Lookup::prepare(platform::Database& database)
{
    if (!catalogue_) {
        auto read = Catalogue::read(database);
        if (!read) {
            return tl::unexpected(read.error());
        }
        catalogue_ = *std::move(read);
    }
    return {};
}

platform::Result<std::vector<Reading>> Lookup::read(platform::Database& database,
                                                    std::string_view text,
                                                    std::string_view language, Guesses guesses)
{
    if (auto ready = prepare(database); !ready) {
        return tl::unexpected(ready.error());
    }
    if (text.size() > kLongestText) {
        return {};
    }
    const auto typed = text::composed(text::wellFormed(text));
    const auto tidy = tidied(typed);
    const auto tokens = tokensOf(tidy);
    const auto phrases =
        phrasesOf(tokens, [&](std::string_view word) { return catalogue_->isAuxiliary(word); });
    Candidates candidates{*catalogue_, database};
    for (const auto& phrase : phrases) {
        candidates.addForms(phrase, MatchKind::Phrase, 0);
    }
    candidates.dropWrongPronouns(
        std::none_of(phrases.begin(), phrases.end(), [](const Phrase& phrase) {
            return phrase.persons != kAnyPerson || phrase.reflexive;
        }));
    setKinds(typed, tidy, candidates);
    const auto known = meanings(database, language);
    if (!known) {
        return tl::unexpected(known.error());
    }
    const bool whole = guesses == Guesses::None || !candidates.empty();
    addMeanings(**known, tidy, whole, candidates);
    if (candidates.empty() && guesses == Guesses::Allowed) {
        addTypos(phrases, candidates);
        addBySound(phrases, catalogue_->sounds(database), candidates);
        if (candidates.empty()) {
            addPartsOfSentence(tokens, candidates);
        }
    }
    if (!candidates.state()) {
        return tl::unexpected(candidates.state().error());
    }
    return std::move(candidates).ranked();
}

platform::Result<std::vector<std::int64_t>> Lookup::verbsNamed(platform::Database& database,
                                                               std::string_view text)
{
    return prepare(database).map([&] {
        const auto typed = text::composed(text::wellFormed(text));
        return typed.size() > kLongestText ? std::vector<std::int64_t>{}
                                           : catalogue_->verbsNamed(tidied(typed));
    });
}

platform::Result<const Meanings*> Lookup::meanings(platform::Database& database,
                                                   std::string_view language)
{
    if (!meanings_ || meanings_->language() != language) {
        auto read = Meanings::read(database, language);
        if (!read) {
            return tl::unexpected(read.error());
        }
        meanings_ = *std::move(read);
    }
    return &*meanings_;
}

} // namespace lumora::lookup
