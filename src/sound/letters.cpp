// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sound/letters.h"

#include <array>
#include <cstddef>
#include <utility>

namespace lumora::sound {

namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kTilde = 0x0303;

constexpr std::array<std::pair<char32_t, char32_t>, 4> kNasals{
    {{U'ɑ', U'ã'}, {U'ɛ', U'ẽ'}, {U'ɔ', U'õ'}, {U'œ', U'ũ'}}};

/// How many bytes a sequence has by its first one; 0 where none begins.
std::size_t sequenceLength(unsigned char lead)
{
    if (lead < 0x80) {
        return 1;
    }
    if (lead >= 0xC2 && lead < 0xE0) {
        return 2;
    }
    if (lead >= 0xE0 && lead < 0xF0) {
        return 3;
    }
    return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

void append(std::string& text, char32_t scalar)
{
    const auto byte = [&](char32_t bits) { text += static_cast<char>(bits); };
    if (scalar < 0x80) {
        byte(scalar);
    } else if (scalar < 0x800) {
        byte(0xC0 | scalar >> 6);
        byte(0x80 | (scalar & 0x3F));
    } else if (scalar < 0x10000) {
        byte(0xE0 | scalar >> 12);
        byte(0x80 | (scalar >> 6 & 0x3F));
        byte(0x80 | (scalar & 0x3F));
    } else {
        byte(0xF0 | scalar >> 18);
        byte(0x80 | (scalar >> 12 & 0x3F));
        byte(0x80 | (scalar >> 6 & 0x3F));
        byte(0x80 | (scalar & 0x3F));
    }
}

} // namespace

std::u32string decoded(std::string_view text)
{
    std::u32string scalars;
    scalars.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        const auto lead = static_cast<unsigned char>(text[i]);
        const auto length = sequenceLength(lead);
        if (length == 0 || i + length > text.size()) {
            scalars += kReplacement;
            ++i;
            continue;
        }
        char32_t scalar = length == 1 ? lead : lead & (0x7FU >> length);
        bool wellFormed = true;
        for (std::size_t k = 1; k < length; ++k) {
            const auto next = static_cast<unsigned char>(text[i + k]);
            wellFormed &= (next & 0xC0) == 0x80;
            scalar = scalar << 6 | (next & 0x3F);
        }
        scalars += wellFormed ? scalar : kReplacement;
        i += wellFormed ? length : 1;
    }
    return scalars;
}

std::string encoded(std::u32string_view text)
{
    std::string bytes;
    bytes.reserve(text.size() * 2);
    for (const auto scalar : text) {
        append(bytes, scalar);
    }
    return bytes;
}

Sounds soundsOf(std::u32string_view ipa)
{
    Sounds sounds;
    for (const auto scalar : ipa) {
        if (scalar != kTilde) {
            sounds += scalar;
            continue;
        }
        for (const auto& [oral, nasal] : kNasals) {
            if (!sounds.empty() && sounds.back() == oral) {
                sounds.back() = nasal;
            }
        }
    }
    return sounds;
}

std::string ipaOf(std::u32string_view sounds)
{
    std::string ipa;
    ipa.reserve(sounds.size() * 2);
    for (const auto sound : sounds) {
        char32_t base = sound;
        for (const auto& [oral, nasal] : kNasals) {
            if (sound == nasal) {
                base = oral;
            }
        }
        append(ipa, base);
        if (base != sound) {
            append(ipa, kTilde);
        }
    }
    return ipa;
}

bool isVowelSound(char32_t sound)
{
    return std::u32string_view(U"aeɛəiouyøœɔãẽõũEØ").find(sound) != std::u32string_view::npos;
}

bool isVowelLetter(char32_t letter)
{
    if (isSaid(letter)) {
        return isVowelSound(soundOf(letter));
    }
    return std::u32string_view(U"aàâäeéèêëiîïoôöuùûüyœ").find(letter) != std::u32string_view::npos;
}

bool isConsonantLetter(char32_t letter)
{
    return !isVowelLetter(letter);
}

} // namespace lumora::sound
