// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>

namespace lumora::platform {
class Device;
class SettingsStore;
} // namespace lumora::platform

namespace lumora::settings {

/// The languages that have a translation column to search and sort by.
enum class TranslationColumn { English, French, German, Spanish, Dutch, Italian, Portuguese };

/// The stored choice when it is a non-empty text, else the device's first
/// preferred language. A device without any is a mistake and stops the program.
std::string effectiveTranslationLanguage(const platform::SettingsStore& settings,
                                         const platform::Device& device);

/// The column that lists and search use for a language: by its first two
/// letters, English for everything without a column (Turkish too).
TranslationColumn columnForLanguage(std::string_view language);

} // namespace lumora::settings
