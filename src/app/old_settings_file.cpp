// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/old_settings_file.h"

#include "app/rescue_file.h"
#include "platform/files/atomic_file.h"
#include "platform/machine/crash_reporter.h"
#include "platform/storage/property_list.h"
#include "platform/storage/settings_store.h"
#include "settings/setting_keys.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>
#include <variant>

namespace lumora::app {

namespace {

constexpr std::uintmax_t kMaximumBytes = std::uintmax_t{1024} * 1024;

enum class Kind { Boolean, Text };

struct CarriedKey {
    std::string_view key;
    Kind kind;
};

constexpr std::array<CarriedKey, 4> kCarriedKeys{{
    {settings::kIncludeEnglish, Kind::Boolean},
    {settings::kSearchFrom, Kind::Text},
    {settings::kSearchConjugations, Kind::Boolean},
    {settings::kSortByLang, Kind::Boolean},
}};

bool isUrlCharacter(char character)
{
    constexpr std::string_view kAllowed = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"
                                          "0123456789-._~:/?#[]@!$&'()*+,;=";
    return kAllowed.find(character) != std::string_view::npos;
}

/// The path that a URL text names; none when it is no valid URL. Query and
/// fragment are no part of the path.
std::optional<std::string> pathOfUrlText(std::string_view text)
{
    std::string path;
    bool inPath = true;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '%') {
            unsigned value = 0;
            const auto* digits = text.data() + i + 1;
            if (i + 2 >= text.size() ||
                std::from_chars(digits, digits + 2, value, 16).ptr != digits + 2) {
                return std::nullopt;
            }
            i += 2;
            if (inPath) {
                path += static_cast<char>(value);
            }
            continue;
        }
        if (!isUrlCharacter(text[i])) {
            return std::nullopt;
        }
        inPath = inPath && text[i] != '?' && text[i] != '#';
        if (inPath) {
            path += text[i];
        }
    }
    return path;
}

void carryOver(const platform::PropertyListDictionary& old, platform::SettingsStore& settings)
{
    for (const auto& [key, kind] : kCarriedKeys) {
        const auto found = old.find(key);
        if (found == old.end()) {
            continue;
        }
        if (const auto* number = std::get_if<double>(&found->second);
            number != nullptr && kind == Kind::Boolean) {
            settings.setValue(*number != 0, key);
        }
        if (const auto* text = std::get_if<std::string>(&found->second);
            text != nullptr && kind == Kind::Text) {
            settings.setValue(*text, key);
        }
    }
}

} // namespace

void carryOverOldSettings(const std::optional<std::string>& documents,
                          platform::SettingsStore& settings, platform::CrashReporter& crashReporter)
{
    if (!documents) {
        return;
    }
    const auto path = pathOfUrlText(*documents);
    if (!path) {
        return;
    }
    const auto file = std::filesystem::path{*path} / "lumora.plist";
    if (!fileExists(file).value_or(false)) {
        return;
    }
    // The values must be on disk before their only other copy goes.
    bool safe = true;
    if (const auto bytes = platform::readFile(file, kMaximumBytes)) {
        std::array<std::string_view, kCarriedKeys.size()> keys;
        std::transform(kCarriedKeys.begin(), kCarriedKeys.end(), keys.begin(),
                       [](const CarriedKey& carried) { return carried.key; });
        if (const auto old = platform::readPropertyListDictionary(*bytes, keys)) {
            carryOver(*old, settings);
            safe = settings.synchronize().has_value();
        }
    }
    if (!safe || !platform::removeDurably(file)) {
        crashReporter.logWithFormat("Unable to delete file. Will try again later. %@", {});
    }
}

} // namespace lumora::app
