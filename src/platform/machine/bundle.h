// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace lumora::platform {

/// What ships with the program: resource files, facts about the program, texts.
class Bundle {
public:
    virtual ~Bundle() = default;

    /// Where the resource `name`.`extension` lies; none when it is missing.
    virtual std::optional<std::filesystem::path>
    pathForResource(std::string_view name, std::string_view extension) const = 0;
    /// For example "CFBundleShortVersionString"; none when it is missing.
    virtual std::optional<std::string> infoValue(std::string_view key) const = 0;
    /// The text for a dotted key in the user's language; none without an entry.
    virtual std::optional<std::string> textForKey(std::string_view key) const = 0;
};

/// The text for `key`, or the key itself where there is none.
std::string localizedString(const Bundle& bundle, std::string_view key);

} // namespace lumora::platform
