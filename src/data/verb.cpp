// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/verb.h"

#include "platform/machine/device.h"
#include "platform/storage/settings_store.h"
#include "settings/setting_keys.h"

#include <cstdlib>
#include <string_view>
#include <utility>

namespace lumora::data {

namespace {

using Text = std::string Verb::*;

constexpr std::pair<std::string_view, Text> kByCode[] = {
    {"en", &Verb::english}, {"fr", &Verb::french},     {"de", &Verb::german},
    {"es", &Verb::spanish}, {"pt", &Verb::portuguese}, {"it", &Verb::italian},
    {"nl", &Verb::dutch},   {"tr", &Verb::turkish},
};

// A device set to Turkish gets English: there is nothing Turkish to show.
constexpr std::pair<std::string_view, Text> kByDeviceLanguage[] = {
    {"fr", &Verb::french}, {"de", &Verb::german},  {"es", &Verb::spanish},
    {"nl", &Verb::dutch},  {"it", &Verb::italian}, {"pt", &Verb::portuguese},
};

} // namespace

const std::string& Verb::translation(const platform::SettingsStore& settings,
                                     const platform::Device& device) const
{
    if (const auto stored = settings.stringForKey(settings::kTranslationLanguage)) {
        for (const auto& [code, text] : kByCode) {
            if (*stored == code) {
                return this->*text;
            }
        }
    }
    const auto preferred = device.preferredLanguages();
    if (preferred.empty()) {
        std::abort();
    }
    for (const auto& [prefix, text] : kByDeviceLanguage) {
        if (preferred.front().starts_with(prefix)) {
            return this->*text;
        }
    }
    return english;
}

} // namespace lumora::data
