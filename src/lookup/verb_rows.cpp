// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/verb_rows.h"

#include "data/form_parts.h"
#include "lookup/sound_key.h"
#include "lookup/spelling.h"
#include "platform/storage/database.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace lumora::lookup {

namespace {

constexpr std::string_view kSelect =
    "SELECT pronoun, verb, type, conj_order FROM conjugation WHERE verbid = ? AND display = 1 "
    "ORDER BY conj_order";

constexpr std::string_view kImperative = "imperatif";

/// "que j'" is of je, "qu'il/elle/on s'" of il; the imperative goes by its place.
void readPronoun(VerbRow& row)
{
    const auto tokens = tokensOf(tidied(row.place.pronoun + " x"));
    for (const auto& token : tokens) {
        row.conjunction = row.conjunction || isQue(token);
        if (row.persons == kAnyPerson) {
            row.persons = subjectPersons(token);
        }
    }
}

RowSpelling spellingOf(const std::string& form)
{
    auto tidy = withoutAgreement(form);
    // "ai crevé, je suis crevé(e)" behind "j'".
    for (const std::string_view own : {"que ", "je ", "j'"}) {
        if (std::string_view{tidy}.substr(0, own.size()) == own) {
            tidy.erase(0, own.size());
        }
    }
    tidy = withoutPronouns(tidy);
    const auto blank = tidy.rfind(' ');
    RowSpelling spelling;
    if (blank != std::string::npos) {
        spelling.auxiliary = tidy.substr(0, blank);
        spelling.foldedAuxiliary = foldedWord(spelling.auxiliary);
        spelling.word = tidy.substr(blank + 1);
    } else {
        spelling.word = tidy;
    }
    spelling.folded = foldedWord(spelling.word);
    return spelling;
}

/// "vas" of "vas-y" is va.
bool isSameWord(const Phrase& phrase, const VerbRow& row, std::string_view typed,
                const RowSpelling& spelling)
{
    if (typed == spelling.folded) {
        return true;
    }
    return phrase.adverbFollows && row.place.tense == kImperative && typed.size() > 1 &&
           typed.back() == 's' && typed.substr(0, typed.size() - 1) == spelling.folded;
}

/// Leaves the rows with "que" where it was typed, those without where a subject
/// was typed alone.
void keepMood(const Phrase& phrase, std::vector<RowMatch>& matches)
{
    if (phrase.persons == kAnyPerson && !phrase.conjunction) {
        return;
    }
    const auto fits = [&](const RowMatch& match) {
        return match.row->conjunction == phrase.conjunction;
    };
    if (std::any_of(matches.begin(), matches.end(), fits)) {
        matches.erase(std::remove_if(matches.begin(), matches.end(),
                                     [&](const RowMatch& match) { return !fits(match); }),
                      matches.end());
    }
}

} // namespace

std::string formOf(const RowSpelling& spelling, const std::string& word)
{
    return spelling.auxiliary.empty() ? word : spelling.auxiliary + " " + word;
}

platform::Result<VerbRows> VerbRows::read(platform::Database& database, std::int64_t verb,
                                          bool pronominal, bool en)
{
    auto found = database.executeQuery(kSelect, {verb});
    if (!found) {
        return tl::unexpected(found.error());
    }
    VerbRows result;
    result.pronominal_ = pronominal;
    result.en_ = en;
    while (found->next()) {
        VerbRow row;
        row.place = {found->stringForColumn(2), found->longForColumn(3), found->stringForColumn(0),
                     found->stringForColumn(1)};
        for (const auto& form : data::spellingsOf(row.place.form)) {
            row.spellings.push_back(spellingOf(form));
            if (row.place.tense == "participe" && row.spellings.back().auxiliary.empty()) {
                result.participles_.push_back(row.spellings.back());
            }
        }
        readPronoun(row);
        result.rows_.push_back(std::move(row));
    }
    if (found->failed()) {
        return tl::unexpected(database.lastError());
    }
    return result;
}

bool VerbRows::agrees(const Phrase& phrase, const VerbRow& row) const
{
    const bool imperative = row.place.tense == kImperative;
    if (phrase.imperative && !imperative) {
        return false;
    }
    if (phrase.inverted && row.conjunction) {
        return false;
    }
    const bool ofOther = row.persons != kAnyPerson && (row.persons & reflexivePersons("se")) == 0;
    if (phrase.se && (imperative || ofOther)) {
        return false;
    }
    if (phrase.persons != kAnyPerson && (row.persons & phrase.persons) == 0) {
        return false;
    }
    return !phrase.conjunction || row.persons != kAnyPerson;
}

const RowSpelling* VerbRows::participleOf(std::string_view folded) const
{
    const auto found =
        std::find_if(participles_.begin(), participles_.end(),
                     [&](const RowSpelling& participle) { return participle.folded == folded; });
    return found == participles_.end() ? nullptr : &*found;
}

std::vector<RowMatch> VerbRows::matches(const Phrase& phrase) const
{
    const auto word = foldedWord(phrase.word);
    const auto auxiliary = foldedWord(phrase.auxiliary);
    const auto* const participle = auxiliary.empty() ? nullptr : participleOf(word);
    std::vector<RowMatch> result;
    for (const auto& row : rows_) {
        if (!agrees(phrase, row)) {
            continue;
        }
        // Of "assénera, assènera" the one that was typed.
        RowMatch best;
        for (const auto& spelling : row.spellings) {
            const bool same = isSameWord(phrase, row, word, spelling);
            if (spelling.foldedAuxiliary != auxiliary || (!same && participle == nullptr)) {
                continue;
            }
            const auto& meant = same ? spelling.word : participle->word;
            const bool sameLetters = meant == phrase.word && spelling.auxiliary == phrase.auxiliary;
            if (best.row == nullptr || (sameLetters && !best.sameLetters)) {
                best = {&row, &spelling, formOf(spelling, meant), sameLetters};
            }
        }
        if (best.row != nullptr) {
            result.push_back(std::move(best));
        }
    }
    keepMood(phrase, result);
    return result;
}

std::vector<RowMatch> VerbRows::soundAlikes(const Phrase& phrase) const
{
    const auto sound = soundKey(phrase.word);
    return spelledAs(phrase,
                     [&](const RowSpelling& spelling) { return soundKey(spelling.word) == sound; });
}

std::vector<RowMatch> VerbRows::nearSoundAlikes(const Phrase& phrase) const
{
    const auto sound = looseKey(foldedWord(phrase.word));
    return spelledAs(
        phrase, [&](const RowSpelling& spelling) { return looseKey(spelling.folded) == sound; });
}

std::vector<RowMatch>
VerbRows::spelledAs(const Phrase& phrase,
                    const std::function<bool(const RowSpelling&)>& isMeant) const
{
    const auto auxiliary = foldedWord(phrase.auxiliary);
    std::vector<RowMatch> result;
    for (const auto& row : rows_) {
        if (!agrees(phrase, row)) {
            continue;
        }
        for (const auto& spelling : row.spellings) {
            if (spelling.foldedAuxiliary == auxiliary && isMeant(spelling)) {
                result.push_back({&row, &spelling, formOf(spelling, spelling.word), false});
                break;
            }
        }
    }
    keepMood(phrase, result);
    return result;
}

bool VerbRows::differsInPronoun(const Phrase& phrase) const
{
    return phrase.reflexive != pronominal_ || (en_ && !phrase.en);
}

} // namespace lumora::lookup
