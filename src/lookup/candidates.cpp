// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/candidates.h"

#include "lookup/spelling.h"

#include <algorithm>
#include <iterator>
#include <tuple>
#include <utility>

namespace lumora::lookup {

namespace {

constexpr std::size_t kMostReadings = 5;
constexpr int kWrongPronoun = 1;

bool isGuess(MatchKind kind)
{
    return kind == MatchKind::Typo || kind == MatchKind::Sound;
}

/// Whether both are guesses of one verb, or of a verb and its pronominal twin (laver,
/// laver (se)): of these only the better one is offered.
bool sameGuess(const Reading& reading, const Reading& other)
{
    const auto nameOf = [](const Reading& named) {
        return std::string_view{named.headword}.substr(0, named.headword.find(" (s"));
    };
    return isGuess(reading.kind) &&
           (other.verb == reading.verb ||
            (other.headword != reading.headword && nameOf(other) == nameOf(reading)));
}

/// Guesses by spelling and by sound are equally sure: their penalties order them.
MatchKind rankOf(MatchKind kind)
{
    return kind == MatchKind::Sound ? MatchKind::Typo : kind;
}

/// The commonest first.
constexpr std::string_view kTenses[] = {"infinitif",
                                        "indicatifPresent",
                                        "indicatifPasseCompose",
                                        "indicatifImparfait",
                                        "indicatifFuturSimple",
                                        "conditionnelPresent",
                                        "imperatif",
                                        "participe",
                                        "subjonctifPresent",
                                        "indicatifPlusQueParfait",
                                        "subjonctifPasse",
                                        "conditionnelPasse1reForme",
                                        "indicatifFuturAnterieur",
                                        "indicatifPasseSimple",
                                        "subjonctifImparfait",
                                        "indicatifPasseAnterieur",
                                        "conditionnelPasse2eForme",
                                        "subjonctifPlusqueParfait"};

int rankOfTense(const Place& place)
{
    return static_cast<int>(std::find(std::begin(kTenses), std::end(kTenses), place.tense) -
                            std::begin(kTenses));
}

} // namespace

Catalogue::Rows Candidates::rows(std::uint32_t verb)
{
    if (!state_) {
        return nullptr;
    }
    auto read = catalogue_.rows(database_, verb);
    if (!read) {
        state_ = tl::unexpected(read.error());
        return nullptr;
    }
    return *read;
}

void Candidates::add(std::uint32_t verb, const std::vector<RowMatch>& matches, MatchKind kind,
                     int penalty)
{
    const auto& name = catalogue_.verb(verb);
    for (const auto& match : matches) {
        auto known = std::find_if(found_.begin(), found_.end(), [&](const Candidate& candidate) {
            return candidate.reading.verb == name.id && candidate.reading.form == match.form;
        });
        if (known == found_.end()) {
            Candidate candidate;
            candidate.reading = {name.id, name.headword, match.form, {}, kind};
            candidate.penalty = penalty;
            candidate.use = name.use;
            candidate.tense = static_cast<int>(std::size(kTenses));
            found_.push_back(std::move(candidate));
            known = std::prev(found_.end());
        }
        auto& places = known->reading.places;
        const auto& place = match.row->place;
        if (std::none_of(places.begin(), places.end(),
                         [&](const Place& other) { return other.order == place.order; })) {
            places.push_back(place);
        }
        known->penalty = std::min(known->penalty, penalty);
        known->tense = std::min(known->tense, rankOfTense(place));
        known->sameLetters = known->sameLetters || match.sameLetters;
    }
}

void Candidates::addInfinitive(std::uint32_t verb, MatchKind kind, int penalty)
{
    const auto found = rows(verb);
    if (found == nullptr) {
        return;
    }
    const auto& name = catalogue_.verb(verb);
    const auto row =
        std::find_if(found->rows().begin(), found->rows().end(), [](const VerbRow& candidate) {
            return candidate.place.tense == kTenses[0] &&
                   candidate.spellings.front().auxiliary.empty();
        });
    if (row != found->rows().end()) {
        const auto& spelling = row->spellings.front();
        add(verb, {{&*row, &spelling, spelling.word, true}}, kind, penalty);
        return;
    }
    Candidate candidate;
    candidate.reading = {
        name.id, name.headword, name.headword.substr(0, name.headword.find(" (s")), {}, kind};
    candidate.penalty = penalty;
    candidate.use = name.use;
    candidate.sameLetters = true;
    found_.push_back(std::move(candidate));
}

void Candidates::addForms(const Phrase& phrase, MatchKind kind, int penalty)
{
    const auto word = foldedWord(phrase.word);
    auto verbs = catalogue_.verbsOf(word);
    if (phrase.adverbFollows && word.size() > 1 && word.back() == 's') {
        const auto more = catalogue_.verbsOf(std::string_view{word}.substr(0, word.size() - 1));
        verbs.insert(verbs.end(), more.begin(), more.end());
    }
    for (const auto verb : verbs) {
        const auto found = rows(verb);
        if (found == nullptr) {
            return;
        }
        const int own = penalty + (found->differsInPronoun(phrase) ? kWrongPronoun : 0);
        const auto matches = found->matches(phrase);
        const bool named = phrase.auxiliary.empty() && phrase.persons == kAnyPerson &&
                           catalogue_.verb(verb).folded == word;
        if (matches.empty() && named) {
            addInfinitive(verb, kind, own);
        }
        add(verb, matches, kind, own);
    }
}

void Candidates::dropWrongPronouns(bool alone)
{
    const auto nameOf = [&](const Candidate& candidate) {
        return catalogue_.verb(catalogue_.numberOf(candidate.reading.verb)).folded;
    };
    // A form alone may be that of the pronominal verb in the rows that are shown
    // without a pronoun.
    const auto shownSo = [](const Candidate& candidate) {
        const auto& places = candidate.reading.places;
        return std::any_of(places.begin(), places.end(), [&](const Place& place) {
            return place.pronoun.empty() &&
                   withoutAgreement(place.form) == withoutPronouns(withoutAgreement(place.form));
        });
    };
    std::vector<std::string> right;
    for (const auto& candidate : found_) {
        if (candidate.penalty == 0) {
            right.push_back(nameOf(candidate));
        }
    }
    found_.erase(std::remove_if(found_.begin(), found_.end(),
                                [&](const Candidate& candidate) {
                                    return candidate.penalty > 0 &&
                                           !(alone && shownSo(candidate)) &&
                                           std::find(right.begin(), right.end(),
                                                     nameOf(candidate)) != right.end();
                                }),
                 found_.end());
}

std::vector<Reading> Candidates::ranked() &&
{
    for (auto& candidate : found_) {
        auto& places = candidate.reading.places;
        std::stable_sort(places.begin(), places.end(), [](const Place& left, const Place& right) {
            return rankOfTense(left) < rankOfTense(right);
        });
    }
    std::stable_sort(
        found_.begin(), found_.end(), [](const Candidate& left, const Candidate& right) {
            const auto key = [](const Candidate& candidate) {
                return std::make_tuple(rankOf(candidate.reading.kind), candidate.penalty,
                                       candidate.use, candidate.tense, candidate.reading.verb);
            };
            return key(left) < key(right);
        });
    std::vector<Reading> readings;
    for (auto& candidate : found_) {
        const auto& reading = candidate.reading;
        const bool known = std::any_of(readings.begin(), readings.end(), [&](const Reading& other) {
            return sameGuess(reading, other) ||
                   (other.verb == reading.verb &&
                    (other.kind != reading.kind || other.form == reading.form));
        });
        if (!known && readings.size() < kMostReadings) {
            readings.push_back(std::move(candidate.reading));
        }
    }
    return readings;
}

} // namespace lumora::lookup
