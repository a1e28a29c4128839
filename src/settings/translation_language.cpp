// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "settings/translation_language.h"

#include "platform/machine/device.h"
#include "platform/storage/settings_store.h"
#include "settings/setting_keys.h"

#include <cstdlib>
#include <utility>

namespace lumora::settings {

std::string effectiveTranslationLanguage(const platform::SettingsStore& settings,
                                         const platform::Device& device)
{
    const auto stored = settings.objectForKey(kTranslationLanguage);
    if (stored) {
        const auto* text = std::get_if<std::string>(&*stored);
        if (text != nullptr && !text->empty()) {
            return *text;
        }
    }
    const auto preferred = device.preferredLanguages();
    if (preferred.empty()) {
        std::abort();
    }
    return preferred.front();
}

TranslationColumn columnForLanguage(std::string_view language)
{
    static constexpr std::pair<std::string_view, TranslationColumn> kByPrefix[] = {
        {"de", TranslationColumn::German},  {"es", TranslationColumn::Spanish},
        {"nl", TranslationColumn::Dutch},   {"pt", TranslationColumn::Portuguese},
        {"it", TranslationColumn::Italian}, {"fr", TranslationColumn::French},
    };
    for (const auto& [prefix, column] : kByPrefix) {
        if (language.starts_with(prefix)) {
            return column;
        }
    }
    return TranslationColumn::English;
}

} // namespace lumora::settings
