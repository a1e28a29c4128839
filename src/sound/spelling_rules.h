// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <span>
#include <string_view>

namespace lumora::sound {

/// Letters that are read together. The first rule that fits is taken.
///
/// left and right are what stands around, a letter or one of these each:
/// # start of the word    $ its end or tail     V vowel    C consonant
/// F front vowel (e é i y ...)                  B back vowel, or one said already
/// N what lets an n before it be nasal          P the same for an m
/// S s or x               L l or r
struct SpellingRule {
    std::u32string_view left;
    std::u32string_view letters;
    std::u32string_view right;
    std::u32string_view sounds;
};

/// The rules whose letters begin so, in their order.
std::span<const SpellingRule> rulesFor(char32_t letter);

} // namespace lumora::sound
