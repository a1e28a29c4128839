// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/candidates.h"
#include "lookup/spelling.h"

#include <algorithm>
#include <cstddef>
#include <string>

namespace lumora::lookup {

namespace {

constexpr std::size_t kMostTokens = 80;
constexpr std::size_t kLongestPart = 7;
constexpr std::size_t kShortestAlone = 3;

/// How sure a part is a verb: with its subject, with another word of it, or an
/// infinitive, or any form.
int penaltyOf(const Phrase& phrase, const Reading& reading)
{
    if (phrase.persons != kAnyPerson) {
        return 0;
    }
    if (!phrase.bare) {
        return 2;
    }
    const bool infinitive =
        std::any_of(reading.places.begin(), reading.places.end(),
                    [](const Place& place) { return place.tense == "infinitif"; });
    return infinitive ? 4 : 6;
}

/// Whether the word may be a verb though nothing beside it says so.
bool mayStandAlone(const std::vector<std::string>& tokens, std::size_t at)
{
    const auto& word = tokens[at];
    return word.size() >= kShortestAlone && !isGrammarWord(word) &&
           (at == 0 || !isDeterminer(tokens[at - 1]));
}

/// The verbs of the tokens from `begin`, which are one phrase; false for none.
bool addPart(const std::vector<std::string>& tokens, std::size_t begin, std::size_t length,
             Candidates& candidates)
{
    const std::vector<std::string> part(tokens.begin() + static_cast<std::ptrdiff_t>(begin),
                                        tokens.begin() +
                                            static_cast<std::ptrdiff_t>(begin + length));
    const auto& catalogue = candidates.catalogue();
    const auto phrases =
        phrasesOf(part, [&](std::string_view word) { return catalogue.isAuxiliary(word); });
    bool any = false;
    for (const auto& phrase : phrases) {
        // "mange la souris" inside "le chat mange la souris" is no imperative.
        const bool order = phrase.imperative && begin > 0;
        if (order || (phrase.bare && !mayStandAlone(tokens, begin))) {
            continue;
        }
        for (const auto verb : catalogue.verbsOf(foldedWord(phrase.word))) {
            const auto rows = candidates.rows(verb);
            if (rows == nullptr) {
                return true;
            }
            auto matches = rows->matches(phrase);
            // Among many words one equals a form by chance once accents are ignored;
            // not so a participle behind its auxiliary.
            if (phrase.auxiliary.empty()) {
                matches.erase(
                    std::remove_if(matches.begin(), matches.end(),
                                   [](const RowMatch& match) { return !match.sameLetters; }),
                    matches.end());
            }
            if (matches.empty() ||
                (rows->differsInPronoun(phrase) && !phrase.reflexive && !phrase.bare)) {
                continue;
            }
            any = true;
            Reading first;
            for (const auto& match : matches) {
                first.places.push_back(match.row->place);
            }
            candidates.add(verb, matches, MatchKind::PartOfText, penaltyOf(phrase, first));
        }
    }
    return any;
}

} // namespace

void addPartsOfSentence(const std::vector<std::string>& tokens, Candidates& candidates)
{
    if (tokens.size() < 2) {
        return;
    }
    const auto end = std::min(tokens.size(), kMostTokens);
    for (std::size_t begin = 0; begin < end;) {
        std::size_t length = std::min(kLongestPart, end - begin);
        while (length > 0 && !addPart(tokens, begin, length, candidates)) {
            --length;
        }
        begin += std::max<std::size_t>(length, 1);
    }
}

} // namespace lumora::lookup
