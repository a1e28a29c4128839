// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "lookup/word_index.h"

#include <string>
#include <string_view>
#include <vector>

namespace lumora::lookup {

/// A word that a misspelt one may stand for.
struct Typo {
    std::string word;
    /// Lower for a common mistake, such as a double letter written once.
    int cost = 0;
};

/// How far two folded words are apart in cost: letters put in, left out, changed,
/// or swapped with a neighbour. At most `most` + 1.
int typoCost(std::string_view typed, std::string_view meant, int most);

inline constexpr int kDoubledLetterCost = 2;
inline constexpr int kOneTypoCost = 4;
inline constexpr int kTwoTyposCost = 8;

/// The words of the index that differ from a folded word by one typo.
std::vector<Typo> wordsOneTypoAway(std::string_view typed, const WordIndex& words);

} // namespace lumora::lookup
