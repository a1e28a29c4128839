// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// Unicode operations on UTF-8 texts. Malformed bytes become U+FFFD.
namespace lumora::platform {

/// Upper case by the full mapping, independent of any language (ß becomes SS).
std::string upperCased(std::string_view text);

/// The canonically composed form (NFC).
std::string composed(std::string_view text);

/// Orders by the scalar values of the composed forms, no collation.
bool scalarLess(std::string_view left, std::string_view right);

/// How many scalar values a well-formed text has.
std::size_t characterCount(std::string_view text);

/// Well-formed UTF-8 with each malformed sequence replaced.
std::string wellFormed(std::string_view text);

/// `text` with every `what`, which is not empty, replaced.
std::string replaced(std::string text, std::string_view what, std::string_view by);

using FormatArgument = std::variant<std::string, int>;

/// Each "%@" takes a text, each "%d" a number, in order; a placeholder without
/// an argument stays as it is.
std::string formatted(std::string_view format, const std::vector<FormatArgument>& arguments);

} // namespace lumora::platform
