// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/base/standard_folders.h"

#include <map>

#include <gtest/gtest.h>

namespace lumora::qt {
namespace {

TEST(StandardFolders, FollowTheBaseFolderVariables)
{
    const struct {
        std::map<std::string, std::string> environment;
        StandardFolders folders;
        const char* why;
    } cases[] = {
        {{{"HOME", "/home/a"}},
         {"/home/a/.local/share/lumora", "/home/a/.config/lumora", "/home/a/.local/state/lumora"},
         "fallbacks"},
        {{{"HOME", "/home/a"},
          {"XDG_DATA_HOME", "/d"},
          {"XDG_CONFIG_HOME", "/c"},
          {"XDG_STATE_HOME", "/s"}},
         {"/d/lumora", "/c/lumora", "/s/lumora"},
         "all set"},
        {{{"HOME", "/home/a"}, {"XDG_DATA_HOME", "relative/d"}, {"XDG_CONFIG_HOME", ""}},
         {"/home/a/.local/share/lumora", "/home/a/.config/lumora", "/home/a/.local/state/lumora"},
         "relative and empty values do not count"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        const auto folders = StandardFolders::fromEnvironment(
            [&](const char* variable) -> std::optional<std::string> {
                const auto found = c.environment.find(variable);
                return found == c.environment.end() ? std::nullopt : std::optional{found->second};
            });
        EXPECT_EQ(folders.data, c.folders.data);
        EXPECT_EQ(folders.config, c.folders.config);
        EXPECT_EQ(folders.state, c.folders.state);
    }
}

} // namespace
} // namespace lumora::qt
