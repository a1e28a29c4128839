// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "settings/translation_language.h"

#include "platform/machine/device.h"
#include "platform/storage/settings_store.h"
#include "settings/setting_keys.h"

#include <cstdlib>
#include <variant>

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

} // namespace lumora::settings
