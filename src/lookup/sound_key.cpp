// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/sound_key.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>

namespace lumora::lookup {

namespace {

/// In the key: A, I, O the nasal vowels, E é and è, U ou, 2 eu, S ch, N gn, j a
/// glide. What a rule must be followed by: any letter, a vowel, a consonant or
/// the end, e or i, the end.
enum class Next { Any, Vowel, NoVowel, Soft, End };

struct Rule {
    std::string_view letters;
    std::string_view sound;
    Next next = Next::Any;
};

/// The first rule that fits is taken; longer ones stand before shorter ones.
constexpr Rule kRules[] = {
    {"aient", "E", Next::End},
    {"èrent", "Er", Next::End},
    {"eaux", "o", Next::End},
    {"eau", "o"},
    {"ient", "jI", Next::End},
    {"ouent", "U", Next::End},
    {"uent", "y", Next::End},
    {"ent", "", Next::End},
    {"ais", "E", Next::End},
    {"ait", "E", Next::End},
    {"ez", "E", Next::End},
    {"er", "E", Next::End},
    {"ées", "E", Next::End},
    {"és", "E", Next::End},
    {"ée", "E", Next::End},
    {"es", "", Next::End},
    {"et", "E", Next::End},
    {"ien", "jI", Next::NoVowel},
    {"aill", "aj"},
    {"eill", "Ej"},
    {"euill", "2j"},
    {"ueill", "2j"},
    {"ouill", "Uj"},
    {"ail", "aj", Next::End},
    {"eil", "Ej", Next::End},
    {"ueil", "2j"},
    {"euil", "2j"},
    {"ill", "ij"},
    {"ain", "I", Next::NoVowel},
    {"ein", "I", Next::NoVowel},
    {"aim", "I", Next::NoVowel},
    {"oin", "wI", Next::NoVowel},
    {"oy", "waj", Next::Vowel},
    {"ay", "Ej", Next::Vowel},
    {"uy", "yj", Next::Vowel},
    {"œu", "2"},
    {"oeu", "2"},
    {"eu", "2"},
    {"oû", "U"},
    {"ou", "U"},
    {"où", "U"},
    {"oi", "wa"},
    {"oî", "wa"},
    {"au", "o"},
    {"aî", "E"},
    {"ai", "E"},
    {"ei", "E"},
    {"an", "A", Next::NoVowel},
    {"am", "A", Next::NoVowel},
    {"en", "A", Next::NoVowel},
    {"em", "A", Next::NoVowel},
    {"in", "I", Next::NoVowel},
    {"im", "I", Next::NoVowel},
    {"yn", "I", Next::NoVowel},
    {"ym", "I", Next::NoVowel},
    {"un", "I", Next::NoVowel},
    {"um", "I", Next::NoVowel},
    {"on", "O", Next::NoVowel},
    {"om", "O", Next::NoVowel},
    {"ch", "S"},
    {"sch", "S"},
    {"ph", "f"},
    // Nous faisons, je faisais.
    {"fais", "fz", Next::Vowel},
    {"gn", "N"},
    {"qu", "k"},
    {"q", "k"},
    {"sc", "s", Next::Soft},
    {"c", "s", Next::Soft},
    {"ç", "s"},
    {"c", "k"},
    {"k", "k"},
    {"ge", "Z", Next::Vowel},
    {"gu", "g", Next::Soft},
    {"g", "Z", Next::Soft},
    {"j", "Z"},
    {"x", "", Next::End},
    {"x", "ks"},
    {"th", "t"},
    {"h", ""},
    {"w", "v"},
    {"œ", "E"},
    {"é", "E"},
    {"è", "E"},
    {"ê", "E"},
    {"ë", "E"},
    {"à", "a"},
    {"â", "a"},
    {"î", "i"},
    {"ï", "i"},
    {"ô", "o"},
    {"û", "y"},
    {"ù", "y"},
    {"u", "y"},
    {"y", "i"},
    {"t", "", Next::End},
    {"d", "", Next::End},
    {"s", "", Next::End},
    {"p", "", Next::End},
    {"z", "", Next::End},
    {"e", "", Next::End},
};

/// The rules by the first byte of their letters, in their order: hundreds of
/// thousands of words are read at once.
struct RulesByLetter {
    static constexpr std::size_t kBytes = 256;
    static constexpr std::size_t kMost = 24;

    std::array<std::array<std::uint8_t, kMost>, kBytes> rules{};
    std::array<std::uint8_t, kBytes> counts{};
};

constexpr RulesByLetter rulesByLetter()
{
    RulesByLetter table;
    for (std::size_t i = 0; i < std::size(kRules); ++i) {
        const auto first = static_cast<unsigned char>(kRules[i].letters.front());
        table.rules.at(first).at(table.counts.at(first)) = static_cast<std::uint8_t>(i);
        ++table.counts.at(first);
    }
    return table;
}

constexpr RulesByLetter kRulesByLetter = rulesByLetter();

constexpr std::string_view kVowels = "aeiouyàâéèêëîïôûùœ";

/// Of the letter at the start of a text, two bytes included.
bool beginsWithOneOf(std::string_view text, std::string_view letters)
{
    if (text.empty()) {
        return false;
    }
    const bool wide = (static_cast<unsigned char>(text.front()) & 0x80U) != 0 && text.size() > 1;
    return letters.find(text.substr(0, wide ? 2 : 1)) != std::string_view::npos;
}

/// Nasal vowels end before a vowel and before another n or m.
bool fits(Next next, std::string_view rest)
{
    switch (next) {
    case Next::Any:
        return true;
    case Next::Vowel:
        return beginsWithOneOf(rest, kVowels);
    case Next::NoVowel:
        return !beginsWithOneOf(rest, kVowels) && !beginsWithOneOf(rest, "nmh");
    case Next::Soft:
        return beginsWithOneOf(rest, "eiyéèêëîï");
    case Next::End:
        return rest.empty();
    }
    return false;
}

/// "e" alone: è before two consonants and before a last one, else it may fall.
std::string_view soundOfE(std::string_view rest)
{
    const bool closed = rest.size() > 1 && !beginsWithOneOf(rest, kVowels) &&
                        !beginsWithOneOf(rest.substr(1), kVowels) && rest[1] != 'r' &&
                        rest[1] != 'l' && rest[1] != 'h';
    const bool doubled = rest.size() > 1 && rest[0] == rest[1];
    return closed || doubled ? "E" : "";
}

/// The first rule for the letters that the word begins with; null for none.
const Rule* ruleOf(std::string_view word)
{
    const auto first = static_cast<unsigned char>(word.front());
    for (std::size_t i = 0; i < kRulesByLetter.counts[first]; ++i) {
        const auto& rule = kRules[kRulesByLetter.rules[first][i]];
        const auto length = rule.letters.size();
        if (word.substr(0, length) == rule.letters && fits(rule.next, word.substr(length))) {
            return &rule;
        }
    }
    return nullptr;
}

std::string keyOf(std::string_view word)
{
    std::string key;
    char before = 0;
    while (!word.empty()) {
        const auto* const rule = ruleOf(word);
        std::string_view sound = word.substr(0, 1);
        std::size_t length = 1;
        if (rule != nullptr) {
            sound = rule->sound;
            length = rule->letters.size();
        } else if (word.front() == 'e') {
            sound = soundOfE(word.substr(1));
        } else if (word.front() == 's' && before != 0 &&
                   kVowels.find(before) != std::string_view::npos &&
                   beginsWithOneOf(word.substr(1), kVowels)) {
            sound = "z";
        }
        before = word[length - 1];
        word.remove_prefix(length);
        for (const char c : sound) {
            // A double consonant is one.
            if (key.empty() || key.back() != c) {
                key += c;
            }
        }
    }
    return key;
}

constexpr std::uint32_t kHashStart = 2166136261U;
constexpr std::uint32_t kHashFactor = 16777619U;

} // namespace

std::string soundKey(std::string_view tidy)
{
    return keyOf(tidy);
}

std::string looseKey(std::string_view folded)
{
    auto key = keyOf(folded);
    // Without accents é cannot be told from e, neither before a consonant nor at the
    // end.
    key.erase(std::remove(key.begin(), key.end(), 'E'), key.end());
    return key;
}

std::uint16_t looseSound(std::string_view folded)
{
    auto hash = kHashStart;
    for (const char c : looseKey(folded)) {
        hash = (hash ^ static_cast<unsigned char>(c)) * kHashFactor;
    }
    return static_cast<std::uint16_t>(hash ^ (hash >> 16U));
}

} // namespace lumora::lookup
