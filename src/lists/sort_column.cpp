// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lists/sort_column.h"

#include "data/translation_table.h"
#include "platform/storage/settings_store.h"
#include "settings/setting_keys.h"

namespace lumora::lists {

bool sortsByFrench(const platform::SettingsStore& settings)
{
    return platform::boolObjectForKey(settings, settings::kSortByLang).value_or(true);
}

std::string_view listSortColumn(const platform::SettingsStore& settings,
                                const platform::Device& device)
{
    if (sortsByFrench(settings)) {
        return "simplified_french";
    }
    return data::listLanguage(settings, device).sortColumn;
}

} // namespace lumora::lists
