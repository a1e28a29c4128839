// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/base/standard_folders.h"

#include <cstdlib>

namespace lumora::qt {

namespace {

std::optional<std::filesystem::path> absolutePath(const StandardFolders::Environment& environment,
                                                  const char* variable)
{
    const auto value = environment(variable);
    if (!value) {
        return std::nullopt;
    }
    std::filesystem::path path{*value};
    if (!path.is_absolute()) {
        return std::nullopt;
    }
    return path;
}

} // namespace

StandardFolders StandardFolders::fromEnvironment(const Environment& environment)
{
    // Without a home there is nothing of a person's to find; the root keeps
    // the paths absolute and is refused by the file system.
    const auto home = absolutePath(environment, "HOME").value_or("/");
    const auto folder = [&](const char* variable, const char* fallback) {
        return absolutePath(environment, variable).value_or(home / fallback) / "lumora";
    };
    return {folder("XDG_DATA_HOME", ".local/share"), folder("XDG_CONFIG_HOME", ".config"),
            folder("XDG_STATE_HOME", ".local/state")};
}

StandardFolders StandardFolders::fromEnvironment()
{
    return fromEnvironment([](const char* variable) -> std::optional<std::string> {
        const char* value = std::getenv(variable);
        return value == nullptr ? std::nullopt : std::optional<std::string>{value};
    });
}

} // namespace lumora::qt
