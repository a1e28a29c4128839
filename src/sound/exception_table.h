// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <span>
#include <string_view>

namespace lumora::sound {

/// A line of content/pronunciation.tsv, whose head describes the notation.
struct Exception {
    std::u32string_view letters;
    std::u32string_view said;
    /// Empty for every verb.
    std::u32string_view verb;
};

/// Sorted by the letters, their ^ not counted.
std::span<const Exception> exceptionTable();

} // namespace lumora::sound
