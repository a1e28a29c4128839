// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "support/temporary_folder.h"

#include <string>
#include <vector>

namespace lumora::terminal {

/// What a run of the program left behind.
struct Run {
    int status = -1;
    std::string out;
    std::string err;
};

/// The real program beside a share folder of its own, as it is installed.
class InstalledProgram {
public:
    /// With a small database and the shipped resources.
    InstalledProgram();

    /// Output goes to a file, in the bare "C" locale unless told otherwise.
    Run run(const std::vector<std::string>& arguments, const std::string& environment = {},
            const std::string& redirection = {}) const;
    /// Output goes to a terminal of that width; stderr too.
    Run runOnTerminal(const std::vector<std::string>& arguments, int columns) const;

    std::filesystem::path home() const { return folder_.path(); }
    std::filesystem::path share() const { return folder_ / "share" / "lumora"; }

private:
    std::string lineOf(const std::vector<std::string>& arguments,
                       const std::string& environment) const;
    Run runLine(const std::string& line, const std::string& redirection) const;

    support::TemporaryFolder folder_;
};

} // namespace lumora::terminal
