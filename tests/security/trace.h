// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace lumora::security {

/// What a program did that others could notice.
struct Trace {
    int exitStatus = -1;
    /// The kinds of sockets it made, for example "AF_UNIX".
    std::vector<std::string> sockets;
    /// The programs that it turned into or started.
    std::vector<std::string> programs;
    /// Every file and folder that it made, opened for writing, renamed, removed
    /// or gave other permissions.
    std::vector<std::filesystem::path> written;
};

/// Runs a command under strace, threads and children with it, and reads what it
/// did. Throws std::runtime_error where tracing is not permitted.
Trace traced(const std::vector<std::string>& command,
             const std::map<std::string, std::string>& environment);

} // namespace lumora::security
