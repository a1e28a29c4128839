// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace lumora::verbdb {

/// The program behind its main function: arguments without the program's name,
/// the exit code as result.
int run(std::vector<std::string> arguments, std::ostream& output, std::ostream& errors);

} // namespace lumora::verbdb
