// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/candidates.h"
#include "lookup/slips.h"
#include "lookup/sound_key.h"
#include "lookup/spelling.h"

#include <algorithm>
#include <cstddef>
#include <string>

namespace lumora::lookup {

namespace {

constexpr std::size_t kShortestInfinitive = 4;
constexpr std::size_t kShortestBesidePronoun = 4;
constexpr std::size_t kShortestDouble = 5;
/// From here on a form may be meant by a word that stands alone, and an infinitive
/// have two slips.
constexpr std::size_t kLong = 7;
constexpr std::size_t kMostWords = 24;
constexpr std::size_t kMostSoundAlikes = 40;

bool isInfinitive(const RowMatch& match)
{
    return match.row->place.tense == "infinitif";
}

void keepInfinitives(std::vector<RowMatch>& matches)
{
    matches.erase(std::remove_if(matches.begin(), matches.end(),
                                 [](const RowMatch& match) { return !isInfinitive(match); }),
                  matches.end());
}

/// Whether a form that is no infinitive may be meant so.
bool mayBeForm(const Phrase& phrase, std::size_t length, int cost)
{
    if (!phrase.bare) {
        return length >= kShortestBesidePronoun;
    }
    return length >= kLong || (length >= kShortestDouble && cost <= kSlipOfDouble);
}

/// Whether an infinitive may stand in it.
bool isSimple(const Phrase& phrase)
{
    return phrase.auxiliary.empty() && phrase.persons == kAnyPerson && !phrase.imperative &&
           !phrase.conjunction;
}

void addOneSlip(const Phrase& phrase, const std::string& word, Candidates& candidates)
{
    auto slips = wordsOneSlipAway(word, candidates.catalogue().words());
    slips.resize(std::min(slips.size(), kMostWords));
    for (const auto& slip : slips) {
        auto meant = phrase;
        meant.word = slip.word;
        for (const auto verb : candidates.catalogue().verbsOf(slip.word)) {
            const auto rows = candidates.rows(verb);
            if (rows == nullptr) {
                return;
            }
            auto matches = rows->matches(meant);
            if (!mayBeForm(phrase, word.size(), slip.cost)) {
                keepInfinitives(matches);
            }
            if (matches.empty() && isSimple(phrase) &&
                candidates.catalogue().verb(verb).folded == slip.word) {
                candidates.addInfinitive(verb, Way::Slip, 4 * slip.cost);
            }
            const bool infinitive = std::any_of(matches.begin(), matches.end(), isInfinitive);
            const int pronoun = rows->differsInPronoun(phrase) ? 1 : 0;
            candidates.add(verb, matches, Way::Slip,
                           4 * slip.cost + (infinitive ? 0 : 2) + pronoun);
        }
    }
}

void addTwoSlips(const std::string& word, Candidates& candidates)
{
    const auto& verbs = candidates.catalogue().verbs();
    for (std::uint32_t number = 0; number < verbs.size(); ++number) {
        const auto& name = verbs[number].folded;
        if (name.size() + 2 < word.size() || word.size() + 2 < name.size()) {
            continue;
        }
        const int cost = slipCost(word, name, kTwoSlips);
        if (cost > 0 && cost <= kTwoSlips) {
            candidates.addInfinitive(number, Way::Slip, 4 * cost);
        }
    }
}

} // namespace

void addSlips(const std::vector<Phrase>& phrases, Candidates& candidates)
{
    for (const auto& phrase : phrases) {
        const auto word = foldedWord(phrase.word);
        if (word.size() < kShortestInfinitive) {
            continue;
        }
        addOneSlip(phrase, word, candidates);
        if (word.size() >= kLong && isSimple(phrase)) {
            addTwoSlips(word, candidates);
        }
    }
}

void addSoundAlikes(const std::vector<Phrase>& phrases, const std::vector<std::uint16_t>& sounds,
                    Candidates& candidates)
{
    const auto& catalogue = candidates.catalogue();
    for (const auto& phrase : phrases) {
        if (soundKey(phrase.word).size() < 2) {
            continue;
        }
        const auto wanted = looseSound(foldedWord(phrase.word));
        std::vector<std::uint32_t> verbs;
        for (auto at = std::find(sounds.begin(), sounds.end(), wanted); at != sounds.end();
             at = std::find(at + 1, sounds.end(), wanted)) {
            const auto more =
                catalogue.words().verbsOf(static_cast<std::size_t>(at - sounds.begin()));
            verbs.insert(verbs.end(), more.begin(), more.end());
        }
        std::sort(verbs.begin(), verbs.end());
        verbs.erase(std::unique(verbs.begin(), verbs.end()), verbs.end());
        std::stable_sort(verbs.begin(), verbs.end(), [&](std::uint32_t left, std::uint32_t right) {
            return catalogue.verb(left).use < catalogue.verb(right).use;
        });
        verbs.resize(std::min(verbs.size(), kMostSoundAlikes));
        for (const auto verb : verbs) {
            const auto rows = candidates.rows(verb);
            if (rows == nullptr) {
                return;
            }
            auto matches = rows->soundAlikes(phrase);
            if (phrase.bare) {
                keepInfinitives(matches);
            }
            candidates.add(verb, matches, Way::Sound, rows->differsInPronoun(phrase) ? 1 : 0);
        }
    }
}

} // namespace lumora::lookup
