// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "navigation/option_rows.h"

#include "data/news.h"
#include "data/translation_table.h"
#include "platform/machine/analytics.h"
#include "platform/machine/bundle.h"
#include "platform/storage/settings_store.h"
#include "settings/search_from.h"
#include "settings/setting_keys.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace lumora::navigation {

using platform::Bundle;
using platform::SettingsStore;

namespace {

bool isTrue(const SettingsStore& settings, std::string_view key)
{
    return settings.boolForKey(key);
}

bool isExplicitlyTrue(const SettingsStore& settings, std::string_view key)
{
    return platform::boolObjectForKey(settings, key).value_or(false);
}

bool isNotFalse(const SettingsStore& settings, std::string_view key)
{
    return platform::boolObjectForKey(settings, key).value_or(true);
}

bool searchesAnywhere(const SettingsStore& settings, std::string_view /*key*/)
{
    return !settings::searchesFromStart(settings);
}

void writeBool(SettingsStore& settings, std::string_view key, bool on)
{
    settings.setValue(on, key);
}

void writeSearchFrom(SettingsStore& settings, std::string_view key, bool anywhere)
{
    settings.setValue(std::string{anywhere ? "W" : "S"}, key);
}

void tellOfHistory(platform::NotificationCenter& notifications, platform::Analytics& /*analytics*/,
                   bool on)
{
    data::post(notifications, data::HistoryFeatureToggled{on});
}

void tellAnalytics(platform::NotificationCenter& /*notifications*/, platform::Analytics& analytics,
                   bool on)
{
    analytics.setAnalyticsCollectionEnabled(on);
}

/// `fallbackKey` names the language when none that is known is stored.
std::string storedLanguage(const SettingsStore& settings, const Bundle& bundle,
                           std::string_view fallbackKey)
{
    const auto stored = settings.stringForKey(settings::kTranslationLanguage);
    const auto* language = stored ? data::languageWithCode(*stored) : nullptr;
    return localizedString(bundle, language == nullptr ? fallbackKey : language->nameKey);
}

/// The stored choice, not the device's language.
std::string languageOfSearch(const SettingsStore& settings, const Bundle& bundle)
{
    return storedLanguage(settings, bundle, "settings.translations.english");
}

std::string chosenLanguage(const SettingsStore& settings, const Bundle& bundle)
{
    return storedLanguage(settings, bundle, "settings.translations.automatic");
}

std::string audioSpeed(const SettingsStore& settings, const Bundle& /*bundle*/)
{
    // A file edited by hand may hold any number.
    constexpr float kMostPercent = 1e9F;
    const float factor = settings.floatForKey(settings::kAudioSpeed);
    const float percent = factor > 0 ? std::min(factor * 100, kMostPercent) : 100;
    return std::to_string(static_cast<int>(percent)) + '%';
}

OptionChooser languageChooser(const Bundle& bundle)
{
    OptionChooser chooser;
    chooser.choices.push_back(
        {localizedString(bundle, "settings.translations.automatic"),
         [](SettingsStore& store) { store.removeValue(settings::kTranslationLanguage); }});
    for (const auto& language : data::kTranslationLanguages) {
        if (language.hasColumn()) {
            chooser.choices.push_back({localizedString(bundle, language.nameKey),
                                       [code = std::string{language.code}](SettingsStore& store) {
                                           store.setValue(code, settings::kTranslationLanguage);
                                       }});
        }
    }
    return chooser;
}

OptionChooser speedChooser(const Bundle& /*bundle*/)
{
    const std::pair<const char*, platform::SettingValue> speeds[] = {
        {"100%", std::int64_t{1}}, {"75%", 0.75}, {"50%", 0.5}, {"25%", 0.25}};
    OptionChooser chooser{"Audio Speed", {}};
    for (const auto& [title, factor] : speeds) {
        chooser.choices.push_back({title, [factor = factor](SettingsStore& store) {
                                       store.setValue(factor, settings::kAudioSpeed);
                                   }});
    }
    return chooser;
}

constexpr OptionSection kSections[] = {
    {"settings.search", "Search", "settings.conjugations.info"},
    {"settings.conjugations", "Conjugations", {}},
    {"settings.history", "History", "settings.history_info"},
    {"settings.analytics", "Data Collection", "settings.analytics.info"},
};

using Kind = OptionRow::Kind;

constexpr OptionRow kRows[] = {
    {.section = 0,
     .kind = Kind::Switch,
     .labelKey = "settings.includeenglish",
     .key = settings::kIncludeEnglish,
     .read = isTrue,
     .write = writeBool,
     .detail = languageOfSearch},
    {.section = 0,
     .kind = Kind::Segments,
     .labelKey = "settings.search",
     .segmentKeys = {"settings.searchtype.start", "settings.searchtype.wildcard"},
     .key = settings::kSearchFrom,
     .read = searchesAnywhere,
     .write = writeSearchFrom},
    {.section = 0,
     .kind = Kind::Segments,
     .labelKey = "settings.sortby",
     .segmentKeys = {"settings.sortby.translated", "settings.sortby.original"},
     .key = settings::kSortByLang,
     .read = isNotFalse,
     .write = writeBool},
    {.section = 0,
     .kind = Kind::Switch,
     .labelKey = "settings.includeconjugations",
     .key = settings::kIncludeConjugations,
     .read = isExplicitlyTrue,
     .write = writeBool},
    {.section = 1,
     .kind = Kind::Segments,
     .labelKey = "settings.descriptions",
     .segmentKeys = {"settings.descriptions.translated", "settings.descriptions.original"},
     .key = settings::kShowTranslated,
     .read = isNotFalse,
     .write = writeBool},
    {.section = 1,
     .kind = Kind::Detail,
     .labelKey = "settings.translations",
     .detail = chosenLanguage,
     .chooser = languageChooser},
    {.section = 1,
     .kind = Kind::Detail,
     .labelKey = "settings.audio.speed",
     .detail = audioSpeed,
     .chooser = speedChooser},
    {.section = 2,
     .kind = Kind::Switch,
     .labelKey = "settings.history",
     .key = settings::kUseHistory,
     .read = isNotFalse,
     .write = writeBool,
     .tell = tellOfHistory},
    {.section = 2,
     .kind = Kind::Detail,
     .labelKey = "settings.history_clear",
     .clearsHistory = true},
    {.section = 3,
     .kind = Kind::Switch,
     .labelKey = "settings.analytics",
     .key = settings::kAnalyticsCollectionEnabled,
     .read = isNotFalse,
     .write = writeBool,
     .tell = tellAnalytics},
};

} // namespace

std::span<const OptionSection> optionSections()
{
    return kSections;
}

std::span<const OptionRow> optionRows()
{
    return kRows;
}

std::optional<platform::IndexPath> pathOfOption(std::string_view key)
{
    platform::IndexPath path{0, -1};
    for (const auto& row : kRows) {
        path = {row.section, row.section == path.section ? path.row + 1 : 0};
        if (row.key == key) {
            return path;
        }
    }
    return std::nullopt;
}

const OptionRow* optionRowAt(platform::IndexPath path)
{
    int row = path.row;
    for (const auto& each : kRows) {
        if (each.section == path.section && row-- == 0) {
            return &each;
        }
    }
    return nullptr;
}

} // namespace lumora::navigation
