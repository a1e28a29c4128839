// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/candidates.h"
#include "lookup/sound_key.h"
#include "lookup/spelling.h"
#include "lookup/typos.h"

#include <algorithm>
#include <cstddef>
#include <string>

namespace lumora::lookup {

namespace {

constexpr std::size_t kShortestInfinitive = 4;
constexpr std::size_t kShortestBesidePronoun = 4;
constexpr std::size_t kShortestDouble = 5;
/// From this length on a word without a subject may stand for a form, and an infinitive
/// may have two typos.
constexpr std::size_t kLongWord = 7;
constexpr std::size_t kMostWords = 24;
constexpr std::size_t kMostSoundAlikes = 40;

// What makes a guess less likely, beside four for each point that a typo costs.
constexpr int kPenaltyPerTypoPoint = 4;
constexpr int kSound = 12;
constexpr int kNearSound = 20;
constexpr int kPenaltyPerUseClass = 2;
constexpr int kForm = 2;
constexpr int kFirstLetter = 4;
constexpr int kOtherPronoun = 4;
constexpr int kVulgar = 6;

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

std::string_view endOf(std::string_view word)
{
    if (word.size() > 3 && word.substr(word.size() - 3) == "ire") {
        word.remove_suffix(1);
    }
    return word.substr(word.size() - std::min<std::size_t>(word.size(), 2));
}

bool endsAsInfinitive(std::string_view word)
{
    const auto end = endOf(word);
    return end == "er" || end == "ir" || end == "re";
}

/// The rarest class of use that is guessed for a word without a subject: every short
/// word resembles some rare verb, and most short words are no verbs.
int rarestFor(std::string_view word)
{
    constexpr int kCommon = 3;
    constexpr int kKnown = 4;
    constexpr int kAny = 5;

    if (word.size() < kShortestDouble) {
        return kCommon;
    }
    if (word.size() >= kLongWord || endsAsInfinitive(word)) {
        return kAny;
    }
    return word.size() == kShortestDouble ? kCommon : kKnown;
}

bool mayBeMeant(const Phrase& phrase, std::string_view word, const VerbName& verb)
{
    return !phrase.bare ||
           (verb.use <= rarestFor(word) && (word.size() >= kLongWord || !verb.vulgar));
}

/// Whether the misspelt word may stand for a form other than an infinitive. Without a
/// subject its first letter must be right.
bool mayBeForm(const Phrase& phrase, std::string_view word, const Typo& typo, const VerbName& verb)
{
    constexpr int kCommon = 2;
    constexpr int kKnown = 3;

    if (!phrase.bare) {
        return word.size() >= kShortestBesidePronoun;
    }
    if (word.front() != typo.word.front()) {
        return false;
    }
    if (word.size() >= kLongWord) {
        return verb.use <= kKnown;
    }
    // "apelle" for appelle, but not "fille" for file.
    return word.size() >= kShortestDouble && typo.cost <= kDoubledLetterCost &&
           typo.word.size() > word.size() && verb.use <= kCommon;
}

/// Whether the typo is likely: in a short word without a subject the first letter must
/// be right.
bool isLikely(const Phrase& phrase, std::string_view word, const Typo& typo)
{
    const bool firstTold =
        word.size() < kShortestDouble || (word.size() < kLongWord && !endsAsInfinitive(word));
    return !phrase.bare || !firstTold || word.front() == typo.word.front();
}

int penaltyOf(const VerbName& verb)
{
    return kPenaltyPerUseClass * verb.use + (verb.vulgar ? kVulgar : 0);
}

/// Whether the phrase may be a bare infinitive.
bool isSimple(const Phrase& phrase)
{
    return phrase.auxiliary.empty() && phrase.persons == kAnyPerson && !phrase.imperative &&
           !phrase.conjunction;
}

/// Adds the verbs of one word in the place of the phrase's.
void addTypo(const Phrase& phrase, std::string_view word, const Typo& typo, Candidates& candidates)
{
    auto meant = phrase;
    meant.word = typo.word;
    for (const auto number : candidates.catalogue().verbsOf(typo.word)) {
        const auto& verb = candidates.catalogue().verb(number);
        if (!mayBeMeant(phrase, word, verb)) {
            continue;
        }
        const auto rows = candidates.rows(number);
        if (rows == nullptr) {
            return;
        }
        auto matches = rows->matches(meant);
        if (!mayBeForm(phrase, word, typo, verb)) {
            keepInfinitives(matches);
        }
        const int penalty = kPenaltyPerTypoPoint * typo.cost + penaltyOf(verb) +
                            (word.front() == typo.word.front() ? 0 : kFirstLetter);
        if (matches.empty() && isSimple(phrase) && verb.folded == typo.word) {
            candidates.addInfinitive(number, MatchKind::Typo, penalty);
        }
        for (auto& match : matches) {
            // The row knows with whom a misspelt participle agrees.
            if (!phrase.auxiliary.empty()) {
                match.form = formOf(*match.spelling, match.spelling->word);
            }
        }
        const bool infinitive = std::any_of(matches.begin(), matches.end(), isInfinitive);
        candidates.add(number, matches, MatchKind::Typo,
                       penalty + (infinitive ? 0 : kForm) +
                           (rows->differsInPronoun(phrase) ? kOtherPronoun : 0));
    }
}

void addOneTypo(const Phrase& phrase, const std::string& word, Candidates& candidates)
{
    auto typos = wordsOneTypoAway(word, candidates.catalogue().words());
    typos.erase(std::remove_if(typos.begin(), typos.end(),
                               [&](const Typo& typo) { return !isLikely(phrase, word, typo); }),
                typos.end());
    typos.resize(std::min(typos.size(), kMostWords));
    for (const auto& typo : typos) {
        addTypo(phrase, word, typo, candidates);
    }
}

/// Two typos leave both ends of an infinitive alone, but for the e of "finire".
void addTwoTypos(const std::string& word, Candidates& candidates)
{
    constexpr int kKnown = 4;

    const auto& verbs = candidates.catalogue().verbs();
    for (std::uint32_t number = 0; number < verbs.size(); ++number) {
        const auto& name = verbs[number].folded;
        if (name.size() + 2 < word.size() || word.size() + 2 < name.size() ||
            name.front() != word.front() || endOf(name) != endOf(word) ||
            verbs[number].use > kKnown) {
            continue;
        }
        const int cost = typoCost(word, name, kTwoTyposCost);
        if (cost > 0 && cost <= kTwoTyposCost) {
            candidates.addInfinitive(number, MatchKind::Typo,
                                     kPenaltyPerTypoPoint * cost + penaltyOf(verbs[number]));
        }
    }
}

} // namespace

void addTypos(const std::vector<Phrase>& phrases, Candidates& candidates)
{
    for (const auto& phrase : phrases) {
        const auto word = foldedWord(phrase.word);
        if (word.size() < kShortestInfinitive) {
            continue;
        }
        addOneTypo(phrase, word, candidates);
        if (candidates.empty() && word.size() >= kLongWord && isSimple(phrase) &&
            endsAsInfinitive(word)) {
            addTwoTypos(word, candidates);
        }
    }
}

void addBySound(const std::vector<Phrase>& phrases, const std::vector<std::uint16_t>& sounds,
                Candidates& candidates)
{
    const auto& catalogue = candidates.catalogue();
    for (const auto& phrase : phrases) {
        if (soundKey(phrase.word).size() < 2) {
            continue;
        }
        const auto word = foldedWord(phrase.word);
        const auto wanted = looseSound(word);
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
        for (const auto number : verbs) {
            const auto& verb = catalogue.verb(number);
            if (!mayBeMeant(phrase, word, verb)) {
                continue;
            }
            const auto rows = candidates.rows(number);
            if (rows == nullptr) {
                return;
            }
            auto matches = rows->soundAlikes(phrase);
            int penalty = kSound;
            if (phrase.bare) {
                keepInfinitives(matches);
            } else if (matches.empty()) {
                matches = rows->nearSoundAlikes(phrase);
                penalty = kNearSound;
            }
            candidates.add(number, matches, MatchKind::Sound,
                           penalty + penaltyOf(verb) +
                               (rows->differsInPronoun(phrase) ? kOtherPronoun : 0));
        }
    }
}

} // namespace lumora::lookup
