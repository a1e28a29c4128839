// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lists/sort_column.h"

#include "platform/storage/settings_store.h"
#include "settings/setting_keys.h"
#include "settings/translation_language.h"

namespace lumora::lists {

bool sortsByFrench(const platform::SettingsStore& settings)
{
    return platform::boolObjectForKey(settings, settings::kSortByLang).value_or(true);
}

std::string_view listSortColumn(const platform::SettingsStore& settings,
                                const platform::Device& device)
{
    using settings::TranslationColumn;
    if (sortsByFrench(settings)) {
        return "simplified_french";
    }
    switch (settings::columnForLanguage(settings::effectiveTranslationLanguage(settings, device))) {
    case TranslationColumn::German:
        return "simplified_german";
    case TranslationColumn::Spanish:
        return "simplified_spanish";
    case TranslationColumn::Dutch:
        return "simplified_dutch";
    case TranslationColumn::Portuguese:
        return "portuguese";
    case TranslationColumn::Italian:
        return "simplified_italian";
    case TranslationColumn::French:
        return "simplified_french";
    case TranslationColumn::English:
        break;
    }
    return "english";
}

} // namespace lumora::lists
