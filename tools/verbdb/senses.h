// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lumora::verbdb {

/// The senses of a translation, which ", " divides; a comma in brackets belongs
/// to its sense: "think (à, de)".
std::vector<std::string> sensesOf(std::string_view translation);

/// The sense without the brackets at its end: "erinnern" of "erinnern (sich) (de)".
std::string_view withoutBrackets(std::string_view sense);

/// Whether each bracket that opens closes before another opens.
bool hasClosedBrackets(std::string_view text);

} // namespace lumora::verbdb
