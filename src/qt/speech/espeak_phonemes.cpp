// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/speech/espeak_phonemes.h"

#include <algorithm>
#include <array>

namespace lumora::qt {

namespace {

struct Phoneme {
    std::string_view ipa;
    std::string_view name;
    bool takesStress = false;
};

/// Nasal vowels stand before the vowels with which they begin.
constexpr std::array<Phoneme, 39> kPhonemes{{
    {"ɑ̃", "A~", true},
    {"ɛ̃", "E~", true},
    {"ɔ̃", "O~", true},
    {"œ̃", "W~", true},
    {"a", "a", true},
    {"ɑ", "a", true},
    {"e", "e", true},
    {"ɛ", "E", true},
    {"i", "i", true},
    {"o", "o", true},
    {"ɔ", "O", true},
    {"u", "u", true},
    {"y", "y", true},
    {"ø", "Y", true},
    {"œ", "W", true},
    {"ə", "@"},
    {"p", "p"},
    {"b", "b"},
    {"t", "t"},
    {"d", "d"},
    {"k", "k"},
    {"ɡ", "g"},
    {"g", "g"},
    {"f", "f"},
    {"v", "v"},
    {"s", "s"},
    {"z", "z"},
    {"ʃ", "S"},
    {"ʒ", "Z"},
    {"m", "m"},
    {"n", "n"},
    {"ɲ", "n^"},
    {"ŋ", "N"},
    {"l", "l"},
    {"ʁ", "r"},
    {"j", "j"},
    {"w", "w"},
    {"h", "h"},
    // The voice has no such glide, but a short vowel.
    {"ɥ", "y-"},
}};

} // namespace

std::optional<std::string> espeakPhonemes(std::string_view ipa, bool endsGroup)
{
    std::string names;
    auto stress = std::string::npos;
    int syllables = 0;
    while (!ipa.empty()) {
        const auto* const phoneme =
            std::find_if(kPhonemes.begin(), kPhonemes.end(),
                         [&](const Phoneme& each) { return ipa.starts_with(each.ipa); });
        if (phoneme == kPhonemes.end()) {
            return std::nullopt;
        }
        if (phoneme->takesStress) {
            stress = names.size();
            ++syllables;
        }
        names += phoneme->name;
        ipa.remove_prefix(phoneme->ipa.size());
        if (ipa.empty() && phoneme->ipa == "ə") {
            // As weak as in "je" and "que".
            names += '-';
        }
    }
    if (names.empty()) {
        return std::nullopt;
    }
    if (syllables > 1 || (endsGroup && syllables > 0)) {
        names.insert(stress, 1, '\'');
    }
    return names;
}

} // namespace lumora::qt
