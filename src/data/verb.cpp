// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/verb.h"

#include "data/translation_table.h"
#include "platform/machine/device.h"
#include "platform/storage/settings_store.h"
#include "settings/setting_keys.h"

#include <cstdlib>

namespace lumora::data {

const std::string& Verb::translation(const platform::SettingsStore& settings,
                                     const platform::Device& device) const
{
    if (const auto stored = settings.stringForKey(settings::kTranslationLanguage)) {
        if (const auto* language = languageWithCode(*stored)) {
            return this->*language->text;
        }
    }
    const auto preferred = device.preferredLanguages();
    if (preferred.empty()) {
        std::abort();
    }
    return this->*languageWithColumn(preferred.front()).text;
}

} // namespace lumora::data
