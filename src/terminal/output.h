// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace lumora::terminal {

/// Where a command prints to.
struct Output {
    std::ostream& stream;
    std::ostream& errors;
    /// Columns of a terminal; 0 for a pipe or a file.
    std::size_t width = 0;

    bool isTerminal() const { return width > 0; }
};

/// Tells the user something, in one line and without control characters.
void tell(const std::string& message, std::ostream& errors);

/// What the user typed, in quotes for a message; of a long text the beginning.
std::string inQuotes(std::string_view typed);

/// Standard output as it is now, and standard error.
Output standardOutput();

/// A few lines that stand together.
using TextBlock = std::vector<std::string>;

/// Puts blocks side by side, as many as fit, under a margin of two columns.
void printBlocks(const std::vector<TextBlock>& blocks, const Output& output);

} // namespace lumora::terminal
