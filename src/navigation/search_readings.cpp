// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "navigation/search_readings.h"

#include "data/translation_table.h"
#include "data/verb_reader.h"
#include "platform/machine/bundle.h"
#include "platform/machine/crash_reporter.h"
#include "platform/storage/database_queue.h"
#include "platform/storage/settings_store.h"
#include "settings/setting_keys.h"
#include "text/pronoun.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

namespace lumora::navigation {

namespace {

constexpr std::size_t kMostAboveList = 2;

/// The form is the verb's own name.
bool isInfinitive(const lookup::Reading& reading)
{
    return reading.places.empty() || reading.places.front().tense == "infinitif";
}

std::string_view withoutPronoun(std::string_view headword)
{
    return headword.substr(0, headword.find(" (s"));
}

/// Leaves what tells more than the list, which begins with the verb `first`.
void keepBestAboveList(std::vector<lookup::Reading>& readings, std::int64_t first)
{
    if (readings.empty()) {
        return;
    }
    const auto& best = readings.front();
    if (best.verb == first && isInfinitive(best)) {
        readings.clear();
        return;
    }
    const auto second =
        std::find_if(readings.begin() + 1, readings.end(), [&](const lookup::Reading& reading) {
            return reading.kind <= lookup::MatchKind::Phrase &&
                   withoutPronoun(reading.headword) != withoutPronoun(best.headword);
        });
    if (second == readings.end()) {
        readings.resize(1);
    } else {
        std::iter_swap(readings.begin() + 1, second);
        readings.resize(kMostAboveList);
    }
}

/// The one that the list shows, so that both have the same star; else from the
/// database. Null when it cannot be read.
data::VerbPtr verbOfId(std::int64_t id, const std::vector<data::VerbPtr>& results,
                       platform::Database& database)
{
    const auto shown = std::find_if(results.begin(), results.end(),
                                    [id](const data::VerbPtr& verb) { return verb->id == id; });
    if (shown != results.end()) {
        return *shown;
    }
    std::vector<data::VerbPtr> read;
    return data::readVerbOfId(database, id, read) && !read.empty() ? read.front() : nullptr;
}

} // namespace

void SearchReadings::prepare()
{
    if (queue == nullptr) {
        return;
    }
    queue->inDatabase([this](platform::Database& database) {
        if (!lookup_.prepare(database)) {
            log(database);
        }
    });
}

void SearchReadings::clear()
{
    cards_.clear();
    replaceResults_ = false;
    offersForms_ = false;
}

void SearchReadings::read(const std::string& text, const std::vector<data::VerbPtr>& results)
{
    clear();
    replaceResults_ = results.empty();
    const bool searchesForms =
        platform::boolObjectForKey(settings_, settings::kIncludeConjugations).value_or(false);
    offersForms_ = replaceResults_ && !searchesForms;
    if (queue == nullptr) {
        return;
    }
    const auto language = data::listLanguage(settings_, device_).code;
    queue->inDatabase([&](platform::Database& database) {
        auto readings =
            lookup_.read(database, text, language,
                         replaceResults_ ? lookup::Guesses::Allowed : lookup::Guesses::None);
        if (!readings) {
            log(database);
            return;
        }
        if (!replaceResults_) {
            keepBestAboveList(*readings, results.front()->id);
        }
        for (const auto& reading : *readings) {
            if (auto verb = verbOfId(reading.verb, results, database)) {
                cards_.push_back(cardOf(reading, std::move(verb)));
            }
        }
    });
}

ReadingCard SearchReadings::cardOf(const lookup::Reading& reading, data::VerbPtr verb) const
{
    ReadingCard card;
    card.headword = reading.headword;
    card.kind = kindOf(reading);
    if (isInfinitive(reading)) {
        const auto& translation = verb->translation(settings_, device_);
        card.detail = translation == verb->french ? std::string{} : translation;
    } else {
        card.detail = placesOf(reading);
        card.place = data::FormPlace{reading.places.front().tense, reading.places.front().order};
    }
    card.verb = std::move(verb);
    return card;
}

std::string SearchReadings::placesOf(const lookup::Reading& reading) const
{
    std::string told;
    std::string_view tense;
    for (const auto& place : reading.places) {
        const auto position = data::positionOfTense(place.tense);
        if (!position) {
            continue;
        }
        if (place.tense == tense) {
            told += ", ";
        } else {
            const auto& block = data::blocksOfSegment(position->segment)[position->block];
            told += told.empty() ? "" : " \u00B7 ";
            told += data::tenseTitle(block.titleKey, bundle_, settings_);
            told += " \u2013 ";
            tense = place.tense;
        }
        told += text::beforeForm(place.pronoun) + place.form;
    }
    return told;
}

std::string SearchReadings::kindOf(const lookup::Reading& reading) const
{
    const auto text = [this](std::string_view key) {
        return platform::localizedString(bundle_, key);
    };
    switch (reading.kind) {
    case lookup::MatchKind::Exact:
    case lookup::MatchKind::Folded:
    case lookup::MatchKind::Phrase:
        break;
    case lookup::MatchKind::Meaning:
        return text("search.by_meaning");
    case lookup::MatchKind::Typo:
        return text("search.by_spelling");
    case lookup::MatchKind::Sound:
        return text("search.by_sound");
    case lookup::MatchKind::PartOfText:
        return text("search.by_sentence");
    }
    return {};
}

void SearchReadings::log(const platform::Database& database)
{
    crashReporter_.logWithFormat("An error occurred when reading what a text may mean: %@ (%d)",
                                 {database.lastErrorMessage(), database.lastErrorCode()});
}

} // namespace lumora::navigation
