// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "navigation/crash_report_values.h"

#include "platform/machine/crash_reporter.h"
#include "platform/machine/device.h"
#include "platform/storage/settings_store.h"
#include "settings/search_from.h"
#include "settings/setting_keys.h"

#include <string_view>

namespace lumora::navigation {

void sendCrashReportValues(const platform::SettingsStore& settings, const platform::Device& device,
                           platform::CrashReporter& report)
{
    const auto orTrue = [&](std::string_view key) {
        return platform::boolObjectForKey(settings, key).value_or(true);
    };
    report.setCustomValue(settings.boolForKey(settings::kIncludeEnglish), "IncludeEnglish");
    report.setCustomValue(settings::searchesFromStart(settings), "SearchFromStart");
    report.setCustomValue(orTrue(settings::kShowTranslated), "ShowTranslated");
    report.setCustomValue(orTrue(settings::kSortByLang), "SortByLang");
    report.setCustomValue(settings.stringForKey(settings::kTranslationLanguage).value_or(""),
                          "TranslationLanguage");
    if (const auto preferred = device.preferredLanguages(); !preferred.empty()) {
        report.setCustomValue(preferred.front(), "Locale");
    }
}

} // namespace lumora::navigation
