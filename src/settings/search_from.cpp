// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "settings/search_from.h"

#include "platform/storage/settings_store.h"
#include "settings/setting_keys.h"

#include <string>
#include <variant>

namespace lumora::settings {

bool searchesFromStart(const platform::SettingsStore& settings)
{
    const auto stored = settings.objectForKey(kSearchFrom);
    const auto* text = stored ? std::get_if<std::string>(&*stored) : nullptr;
    return text == nullptr || *text == "S";
}

} // namespace lumora::settings
