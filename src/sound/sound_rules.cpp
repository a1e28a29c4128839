// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sound/sound_rules.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace lumora::sound {

namespace {

constexpr auto kNone = Sounds::npos;

/// "pl", "dʁ": after these i, u and y stay vowels.
bool isCluster(char32_t first, char32_t second)
{
    return isOneOf(first, U"pbtdkɡfv") && isOneOf(second, U"lʁ");
}

bool endsInCluster(const Sounds& sounds)
{
    return sounds.size() >= 2 && isCluster(sounds[sounds.size() - 2], sounds.back());
}

std::size_t nextVowel(const Sounds& sounds, std::size_t from)
{
    while (from < sounds.size() && !isVowelSound(sounds[from])) {
        ++from;
    }
    return from < sounds.size() ? from : kNone;
}

/// joue, crierai, paiement: an e after a vowel is never said.
Sounds withoutEAfterVowel(const Sounds& sounds)
{
    Sounds kept;
    for (const auto sound : sounds) {
        if (sound != U'ə' || kept.empty() || !isVowelSound(kept.back())) {
            kept += sound;
        }
    }
    return kept;
}

/// What i, y and u become before a vowel; other sounds stay.
std::u32string_view glideOf(char32_t sound, char32_t next, bool afterCluster)
{
    switch (sound) {
    case U'i':
        return afterCluster ? U"ij" : U"j";
    case U'y':
        return afterCluster && next != U'i' ? U"y" : U"ɥ";
    case U'u':
        return afterCluster ? U"u" : U"w";
    default:
        return {};
    }
}

/// nier, tuer, louer with one syllable; oublier, montrions, clouer with two.
Sounds withGlides(const Sounds& sounds)
{
    Sounds result;
    for (std::size_t i = 0; i < sounds.size(); ++i) {
        const auto sound = sounds[i];
        const auto next = i + 1 < sounds.size() ? sounds[i + 1] : 0;
        const bool cluster = endsInCluster(result);
        const bool meetsVowel = isVowelSound(next) && next != U'ə' && next != sound;
        const auto glide = meetsVowel ? glideOf(sound, next, cluster) : std::u32string_view();
        if (!glide.empty()) {
            result += glide;
        } else {
            result += sound == U'j' && cluster ? U"ij" : std::u32string_view(&sound, 1);
        }
    }
    return result;
}

/// ɛ where its own syllable is the last one, or the next has a mute e, or before
/// jɔ (rayonner); e elsewhere.
void settleE(Sounds& sounds)
{
    for (std::size_t i = 0; i < sounds.size(); ++i) {
        if (sounds[i] == U'E') {
            const auto next = nextVowel(sounds, i + 1);
            const bool open =
                next == kNone || sounds[next] == U'ə' || sounds.compare(i + 1, 2, U"jɔ") == 0;
            sounds[i] = open ? U'ɛ' : U'e';
        }
    }
}

/// œ before the consonants that open it, ø elsewhere.
void settleEu(Sounds& sounds)
{
    for (std::size_t i = 0; i < sounds.size(); ++i) {
        if (sounds[i] != U'Ø') {
            continue;
        }
        const auto next = i + 1 < sounds.size() ? sounds[i + 1] : 0;
        const auto second = i + 2 < sounds.size() ? sounds[i + 2] : 0;
        const bool opens = isOneOf(next, U"ʁvljfn") || (isOneOf(next, U"bɡp") && second == U'l');
        sounds[i] = next != 0 && opens ? U'œ' : U'ø';
    }
}

/// Whether the e at this place is said, by what is kept before it.
bool keepsE(const Sounds& before, const Sounds& sounds, std::size_t at)
{
    std::size_t consonants = 0;
    while (consonants < before.size() && !isVowelSound(before[before.size() - 1 - consonants])) {
        ++consonants;
    }
    if (consonants == before.size() || consonants >= 2) {
        return true;
    }
    const auto vowel = before[before.size() - 1 - consonants];
    if (vowel == U'ə') {
        return true;
    }
    const auto next = nextVowel(sounds, at + 1);
    if (next == kNone || next - at > 2) {
        return true;
    }
    const auto last = before.back();
    // enregistrer: re- after a nasal vowel.
    const bool keepsAfterR = sounds[at + 1] == U'ʁ' || isOneOf(vowel, U"ãẽõũ");
    return last == U'ɲ' || (last == U'ʁ' && keepsAfterR) ||
           (isOneOf(last, U"kɡ") && sounds[at + 1] == U't');
}

Sounds withoutFallenE(const Sounds& sounds)
{
    Sounds kept;
    for (std::size_t i = 0; i < sounds.size(); ++i) {
        if (sounds[i] != U'ə' || keepsE(kept, sounds, i)) {
            kept += sounds[i];
        }
    }
    return kept;
}

} // namespace

Sounds settled(const Sounds& sounds)
{
    // paierai: its e opens the syllable before it, and only then falls.
    auto result = sounds;
    settleE(result);
    result = withGlides(withoutEAfterVowel(result));
    settleEu(result);
    return withoutFallenE(result);
}

} // namespace lumora::sound
