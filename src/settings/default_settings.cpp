// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "settings/default_settings.h"

#include "platform/storage/settings_store.h"
#include "settings/setting_keys.h"

namespace lumora::settings {

void seedDefaultSettings(platform::SettingsStore& settings)
{
    // A stored false has a text too, so a user's own choice is never seeded over.
    if (settings.stringForKey(kIncludeEnglish)) {
        return;
    }
    settings.setValue(true, kIncludeEnglish);
    settings.setValue(std::string{"S"}, kSearchFrom);
    settings.setValue(false, kSearchConjugations);
    settings.setValue(true, kSortByLang);
    settings.setValue(false, kShowTranslated);
}

} // namespace lumora::settings
