// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lumora::text {

/// A text of which parts were left out.
struct ShortenedText {
    std::string text;
    /// Where each character of `text` is in the whole text, counted in characters.
    std::vector<std::size_t> places;
};

/// Without the endings in brackets, which are written but not spoken: "allé(e)(s)" is
/// "allé". A bracket that follows no letter, or that is never closed, stays.
ShortenedText withoutBracketedEndings(std::string_view written);

/// Whether the text has a letter. Characters beyond ASCII all count as letters, which
/// is enough for French.
bool hasLetters(std::string_view text);

} // namespace lumora::text
