// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>

namespace lumora::platform {
class Device;
class SettingsStore;
} // namespace lumora::platform

namespace lumora::lists {

/// One search as the database gets it: every `?` of the statement is bound to
/// the pattern.
struct SearchQuery {
    /// The text with plain apostrophes.
    std::string text;
    std::string statement;
    std::string pattern;
    int placeholders = 0;
    /// Whether the conjugated forms are searched too.
    bool searchesForms = false;
};

/// Reads the search settings and assembles the statement. "%" and "_" in the
/// text act as wildcards.
SearchQuery makeSearchQuery(std::string_view text, const platform::SettingsStore& settings,
                            const platform::Device& device);

} // namespace lumora::lists
