// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/desktop_search.h"

#include "data/translation_table.h"
#include "data/verb_reader.h"
#include "text/text.h"

#include <algorithm>
#include <utility>

namespace lumora::app {

namespace {

constexpr std::size_t kFewestLetters = 3;
constexpr char kParting = ' ';
constexpr std::string_view kInfinitive = "infinitif";

std::string idOf(std::int64_t verb, std::string_view text)
{
    return std::to_string(verb) + kParting + std::string{text};
}

} // namespace

DesktopSearch::DesktopSearch(std::filesystem::path database, const platform::Bundle& bundle,
                             const platform::Device& device)
    : file_{std::move(database)}, bundle_{bundle}, device_{device}
{}

platform::Result<std::vector<DesktopSearchResult>>
DesktopSearch::search(std::string_view text, const platform::SettingsStore& settings)
{
    const auto typed = text::trimmed(text::composed(text));
    std::vector<DesktopSearchResult> results;
    if (text::characterCount(typed) < kFewestLetters) {
        return results;
    }
    if (queue_ == nullptr) {
        queue_ = platform::DatabaseQueue::open(platform::existingFileUrl(file_));
    }
    if (queue_ == nullptr) {
        return tl::unexpected(platform::Error{"the database cannot be opened"});
    }
    std::optional<platform::Error> error;
    queue_->inDatabase([&](platform::Database& database) {
        const auto language = data::listLanguage(settings, device_).code;
        const auto readings = lookup_.read(database, typed, language, lookup::Guesses::None);
        if (!readings) {
            error = readings.error();
            return;
        }
        for (const auto& reading : *readings) {
            if (reading.kind > lookup::MatchKind::Folded) {
                continue;
            }
            auto result = resultOf(reading, typed, settings, database);
            if (!result) {
                error = result.error();
                return;
            }
            results.push_back(*std::move(result));
        }
    });
    if (error) {
        return tl::unexpected(*error);
    }
    return results;
}

platform::Result<std::optional<DesktopSearchResult>>
DesktopSearch::result(std::string_view id, const platform::SettingsStore& settings)
{
    const auto parting = id.find(kParting);
    const auto text = parting == std::string_view::npos ? "" : id.substr(parting + 1);
    return search(text, settings).map([id](const std::vector<DesktopSearchResult>& results) {
        const auto meant =
            std::find_if(results.begin(), results.end(),
                         [id](const DesktopSearchResult& result) { return result.id == id; });
        return meant == results.end() ? std::nullopt : std::optional{*meant};
    });
}

platform::Result<DesktopSearchResult>
DesktopSearch::resultOf(const lookup::Reading& reading, std::string_view text,
                        const platform::SettingsStore& settings, platform::Database& database) const
{
    std::vector<data::VerbPtr> verbs;
    if (!data::readVerbOfId(database, reading.verb, verbs)) {
        return tl::unexpected(database.lastError());
    }
    DesktopSearchResult result;
    result.id = idOf(reading.verb, text);
    result.title = titleOf(reading, settings);
    result.verb = reading.verb;
    if (!verbs.empty()) {
        const auto& meaning = verbs.front()->translation(settings, device_);
        result.meaning = meaning == verbs.front()->french ? std::string{} : meaning;
    }
    if (!reading.places.empty() && reading.places.front().tense != kInfinitive) {
        result.place = data::FormPlace{reading.places.front().tense, reading.places.front().order};
    }
    return result;
}

std::string DesktopSearch::titleOf(const lookup::Reading& reading,
                                   const platform::SettingsStore& settings) const
{
    auto title = reading.headword;
    std::string_view tense;
    for (const auto& place : reading.places) {
        const auto position = data::positionOfTense(place.tense);
        if (!position) {
            continue;
        }
        if (place.tense != tense) {
            const auto& block = data::blocksOfSegment(position->segment)[position->block];
            title += tense.empty() ? " \u2013 " : " \u00B7 ";
            title += data::tenseTitle(block.titleKey, bundle_, settings);
            tense = place.tense;
        }
        if (!place.pronoun.empty()) {
            title += ", " + place.pronoun;
        }
    }
    return title;
}

} // namespace lumora::app
