// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// Unicode operations on UTF-8 texts. Malformed bytes become U+FFFD.
namespace lumora::text {

/// Upper case by the full mapping, independent of any language (ß becomes SS).
std::string upperCased(std::string_view text);

/// The canonically composed form (NFC).
std::string composed(std::string_view text);

/// Lower case by the full mapping, independent of any language.
std::string lowerCased(std::string_view text);

/// With "oe" for œ and "ae" for æ, as a keyboard without them writes. Capital ligatures
/// stay.
std::string withoutLigatures(std::string text);

/// Without regard to case, accents and ligatures: "Œuvrer" and "oeuvrer" are the
/// same, ß is ss.
std::string folded(std::string_view text);

/// Orders by the scalar values of the composed forms, no collation.
bool scalarLess(std::string_view left, std::string_view right);

/// How many scalar values a well-formed text has.
std::size_t characterCount(std::string_view text);

/// Well-formed UTF-8 with each malformed sequence replaced.
std::string wellFormed(std::string_view text);

bool isWellFormed(std::string_view text);

/// Whether the text is in canonically composed form.
bool isComposed(std::string_view text);

/// The scalar values.
std::u32string characters(std::string_view text);

/// How many columns of a terminal the text takes; marks take none, wide
/// characters two.
std::size_t columns(std::string_view text);

/// `text` without the white space at its ends.
std::string trimmed(std::string_view text);

/// `text` with every `what`, which is not empty, replaced.
std::string replaced(std::string text, std::string_view what, std::string_view by);

using FormatArgument = std::variant<std::string, int>;

/// Each "%@" takes a text, each "%d" a number, in order; a placeholder without
/// an argument stays as it is.
std::string formatted(std::string_view format, const std::vector<FormatArgument>& arguments);

} // namespace lumora::text
