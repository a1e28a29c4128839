// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdlib>
#include <string>

#include <sys/wait.h>

namespace lumora::support {

/// One word of a shell's line, whatever is in it.
inline std::string shellQuoted(const std::string& word)
{
    std::string quoted = "'";
    for (const char byte : word) {
        quoted += byte == '\'' ? std::string{"'\\''"} : std::string{byte};
    }
    return quoted + "'";
}

/// Runs a line and answers its exit status; -1 when a signal ended it.
inline int runInShell(const std::string& line)
{
    // NOLINTNEXTLINE(bugprone-command-processor): the line is the test's own.
    const int waited = std::system(line.c_str());
    return WIFEXITED(waited) ? WEXITSTATUS(waited) : -1;
}

} // namespace lumora::support
