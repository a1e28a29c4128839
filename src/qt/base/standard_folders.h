// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace lumora::qt {

/// Where the program keeps a person's things, by the desktop's base folder
/// variables. None of the folders need exist yet.
struct StandardFolders {
    /// The verb database with its favourites and history.
    std::filesystem::path data;
    std::filesystem::path config;
    /// Logs and crash reports.
    std::filesystem::path state;

    using Environment = std::function<std::optional<std::string>(const char* variable)>;

    /// A variable that is unset, empty or no absolute path falls back to its
    /// folder below HOME.
    static StandardFolders fromEnvironment(const Environment& environment);
    static StandardFolders fromEnvironment();
};

} // namespace lumora::qt
