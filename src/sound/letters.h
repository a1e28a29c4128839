// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>

/// Words as the rules of spelling see them: one element a letter or a sound.
namespace lumora::sound {

/// Letters of a word, lower case. Among them may stand sounds that are known
/// already (see said) and kTail for consonants at the end that are not heard.
using Letters = std::u32string;

/// Sounds in IPA, one element each. The nasal vowels are ã ẽ õ ũ here.
using Sounds = std::u32string;

/// Consonants at the end of a form that are written but not said.
inline constexpr char32_t kTail = U'|';

inline constexpr char32_t kSaidMark = 0x01000000;

/// A sound that stands among letters and is not to be read again.
constexpr char32_t said(char32_t sound)
{
    return sound | kSaidMark;
}

constexpr bool isSaid(char32_t letter)
{
    return (letter & kSaidMark) != 0;
}

constexpr char32_t soundOf(char32_t letter)
{
    return letter & ~kSaidMark;
}

constexpr bool isOneOf(char32_t one, std::u32string_view many)
{
    return many.find(one) != std::u32string_view::npos;
}

/// Malformed bytes become U+FFFD.
std::u32string decoded(std::string_view text);

std::string encoded(std::u32string_view text);

/// "ɑ̃" is two scalar values in IPA and one sound here.
Sounds soundsOf(std::u32string_view ipa);

/// The other way round.
std::string ipaOf(std::u32string_view sounds);

bool isVowelSound(char32_t sound);

/// Includes the vowels that are said already.
bool isVowelLetter(char32_t letter);

/// Any other letter, and the tail.
bool isConsonantLetter(char32_t letter);

} // namespace lumora::sound
