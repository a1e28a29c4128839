// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sound/spelling_rules.h"

#include <algorithm>
#include <array>

namespace lumora::sound {

namespace {

using Rule = SpellingRule;

// Sorted by the first of the letters; within one, the longer before the shorter; one
// rule a line.
// clang-format off
constexpr auto kRules = std::to_array<Rule>({
    {U"", U"aill", U"", U"aj"},
    {U"", U"ail", U"$", U"aj"},
    {U"", U"aim", U"P", U"ẽ"},
    {U"", U"ain", U"N", U"ẽ"},
    {U"", U"ai", U"", U"E"},
    {U"", U"aî", U"", U"E"},
    {U"", U"aou", U"", U"u"},  // saouler
    {U"", U"aoû", U"", U"u"},
    {U"", U"au", U"r", U"ɔ"},
    {U"", U"au", U"", U"o"},
    {U"", U"ays", U"", U"eiz"},  // dépayser
    {U"", U"ay", U"V", U"Ej"},
    {U"", U"ay", U"", U"E"},
    {U"", U"am", U"P", U"ã"},
    {U"", U"an", U"N", U"ã"},
    {U"", U"a", U"", U"a"},
    {U"", U"b", U"s", U"p"},  // observer
    {U"", U"b", U"t", U"p"},
    {U"", U"bb", U"", U"b"},
    {U"", U"b", U"", U"b"},
    {U"", U"cch", U"", U"k"},
    {U"", U"ccueill", U"", U"kœj"},
    {U"", U"cc", U"F", U"ks"},
    {U"", U"cc", U"", U"k"},
    {U"", U"ch", U"L", U"k"},
    {U"", U"ch", U"n", U"k"},
    {U"", U"ch", U"", U"ʃ"},
    {U"", U"ck", U"", U"k"},
    {U"", U"cqu", U"", U"k"},
    {U"", U"cueill", U"", U"kœj"},
    {U"", U"c", U"F", U"s"},
    {U"", U"c", U"", U"k"},
    {U"", U"dd", U"", U"d"},
    {U"", U"d", U"", U"d"},
    {U"", U"eau", U"", U"o"},
    {U"", U"ea", U"C", U"i"},  // streamer
    {U"", U"ee", U"", U"i"},
    {U"#", U"emm", U"", U"ãm"},  // emmener
    {U"#r", U"emm", U"", U"ãm"},
    {U"#dés", U"emm", U"", U"ãm"},
    {U"#", U"enn", U"", U"ãn"},
    {U"#r", U"enn", U"", U"ãn"},
    {U"#dés", U"enn", U"", U"ãn"},
    {U"", U"enh", U"", U"ã"},  // enhardir
    {U"", U"eill", U"", U"Ej"},
    {U"", U"eil", U"$", U"Ej"},
    {U"", U"eim", U"P", U"ẽ"},
    {U"", U"ein", U"N", U"ẽ"},
    {U"", U"ei", U"", U"E"},
    {U"", U"ey", U"V", U"Ej"},
    {U"", U"ey", U"", U"E"},
    {U"", U"euill", U"", U"œj"},
    {U"", U"euil", U"$", U"œj"},
    {U"#", U"eu", U"", U"ø"},  // européaniser
    {U"", U"eu", U"", U"Ø"},
    {U"", U"eû", U"", U"ø"},
    {U"i", U"en", U"$", U"ẽ"},
    {U"i", U"en", U"dr", U"ẽ"},  // viendra
    {U"y", U"en", U"$", U"ẽ"},
    {U"é", U"en", U"$", U"ẽ"},
    {U"", U"em", U"P", U"ã"},
    {U"", U"en", U"N", U"ã"},
    {U"", U"e", U"oi", U""},  // asseoir
    {U"", U"e-", U"V", U""},
    {U"", U"e-", U"", U"ə"},  // contre-braquer
    {U"#cyb", U"e", U"r", U"ɛ"},
    {U"#hyp", U"e", U"r", U"ɛ"},
    {U"#int", U"e", U"rV", U"ɛ"},  // interagir
    {U"#sup", U"e", U"r", U"ɛ"},
    {U"", U"e", U"scF", U"E"},
    {U"", U"e", U"sç", U"E"},
    {U"#r", U"e", U"ss", U"ə"},  // ressembler
    {U"#d", U"e", U"ss", U"e"},
    {U"", U"ff", U"", U"f"},
    {U"", U"f", U"", U"f"},
    {U"", U"ge", U"B", U"ʒ"},  // mangeons
    {U"", U"gg", U"F", U"ɡʒ"},  // suggérer
    {U"", U"gg", U"", U"ɡ"},
    {U"", U"gh", U"", U"ɡ"},
    {U"", U"gn", U"", U"ɲ"},
    {U"", U"gueill", U"", U"ɡœj"},
    {U"", U"gu", U"V", U"ɡ"},
    {U"", U"g", U"F", U"ʒ"},
    {U"", U"g", U"", U"ɡ"},
    {U"", U"h", U"", U""},
    {U"C", U"ill", U"V", U"ij"},
    {U"qu", U"ill", U"V", U"ij"},  // maquiller
    {U"gu", U"ill", U"V", U"ij"},
    {U"", U"im", U"P", U"ẽ"},
    {U"", U"in", U"N", U"ẽ"},
    {U"", U"i", U"", U"i"},
    {U"", U"j", U"", U"ʒ"},
    {U"", U"k", U"", U"k"},
    {U"", U"ll", U"", U"l"},
    {U"", U"l", U"", U"l"},
    {U"", U"mm", U"", U"m"},
    {U"da", U"mn", U"", U"n"},  // condamner
    {U"", U"m", U"", U"m"},
    {U"", U"nn", U"", U"n"},
    {U"", U"n", U"", U"n"},
    {U"", U"oin", U"N", U"wẽ"},
    {U"", U"oi", U"", U"wa"},
    {U"", U"oî", U"", U"wa"},
    {U"", U"oê", U"", U"wa"},  // poêler
    {U"", U"oy", U"V", U"waj"},
    {U"", U"oy", U"", U"wa"},
    {U"", U"oeill", U"", U"œj"},
    {U"", U"oeu", U"", U"Ø"},
    {U"", U"ouill", U"", U"uj"},
    {U"", U"oo", U"", U"u"},
    {U"", U"ou", U"", U"u"},
    {U"", U"oû", U"", U"u"},
    {U"", U"om", U"P", U"õ"},
    {U"", U"on", U"N", U"õ"},
    {U"", U"o", U"sV", U"o"},  // poser
    {U"", U"o", U"$", U"o"},
    {U"", U"o", U"", U"ɔ"},
    {U"", U"ph", U"", U"f"},
    {U"om", U"p", U"t", U""},  // compter
    {U"xem", U"p", U"t", U""},
    {U"ba", U"p", U"t", U""},
    {U"cul", U"p", U"t", U""},  // sculpter
    {U"", U"pp", U"", U"p"},
    {U"", U"p", U"", U"p"},
    {U"", U"qu", U"", U"k"},
    {U"", U"q", U"", U"k"},
    {U"", U"rrh", U"", U"ʁ"},
    {U"", U"rr", U"", U"ʁ"},
    {U"", U"r", U"", U"ʁ"},
    {U"", U"sch", U"", U"ʃ"},
    {U"", U"sc", U"F", U"s"},  // descendre
    {U"#dé", U"sh", U"V", U"z"},
    {U"tran", U"sh", U"V", U"z"},
    {U"", U"sh", U"", U"ʃ"},
    {U"", U"ss", U"", U"s"},
    {U"", U"sç", U"", U"s"},
    {U"tran", U"s", U"V", U"z"},  // transiter
    {U"#re", U"s", U"V", U"s"},
    {U"#anti", U"s", U"V", U"s"},
    {U"#auto", U"s", U"V", U"s"},
    {U"#co", U"s", U"V", U"s"},  // cosigner
    {U"#contre", U"s", U"V", U"s"},
    {U"#entre", U"s", U"V", U"s"},
    {U"#photo", U"s", U"V", U"s"},
    {U"V", U"s", U"V", U"z"},
    {U"", U"s", U"", U"s"},
    {U"", U"th", U"", U"t"},
    {U"", U"tt", U"", U"t"},
    {U"S", U"t", U"", U"t"},  // questionner
    {U"", U"t", U"ionn", U"s"},  // stationner
    {U"", U"t", U"ional", U"s"},
    {U"", U"t", U"ial", U"s"},
    {U"", U"t", U"iel", U"s"},
    {U"pa", U"t", U"ient", U"s"},  // patienter
    {U"", U"t", U"", U"t"},
    {U"", U"uill", U"V", U"ɥij"},
    {U"", U"um", U"P", U"ũ"},
    {U"", U"un", U"N", U"ũ"},
    {U"", U"uy", U"V", U"ɥij"},  // essuyer
    {U"", U"u", U"", U"y"},
    {U"", U"v", U"", U"v"},
    {U"", U"w", U"", U"w"},
    {U"", U"x", U"cF", U"k"},  // exciter
    {U"", U"xs", U"", U"ks"},
    {U"#e", U"xh", U"V", U"ɡz"},
    {U"#e", U"x", U"V", U"ɡz"},
    {U"Ve", U"x", U"V", U"ɡz"},  // réexaminer
    {U"#ine", U"x", U"V", U"ɡz"},
    {U"", U"x", U"", U"ks"},
    {U"", U"ym", U"P", U"ẽ"},
    {U"", U"yn", U"N", U"ẽ"},
    {U"#", U"y", U"V", U"j"},
    {U"V", U"y", U"V", U"j"},
    {U"", U"y", U"", U"i"},
    {U"", U"zz", U"", U"z"},
    {U"", U"z", U"", U"z"},
    {U"", U"à", U"", U"a"},
    {U"", U"âill", U"", U"aj"},
    {U"", U"â", U"", U"a"},
    {U"", U"ç", U"", U"s"},
    {U"", U"è", U"", U"ɛ"},
    {U"", U"é", U"", U"e"},
    {U"", U"ê", U"", U"ɛ"},
    {U"", U"ë", U"", U"ɛ"},
    {U"", U"înm", U"", U"ẽm"},  // vînmes
    {U"", U"în", U"N", U"ẽ"},
    {U"", U"î", U"", U"i"},
    {U"", U"ïn", U"N", U"ẽ"},
    {U"", U"ï", U"", U"i"},
    {U"", U"ô", U"", U"o"},
    {U"", U"ö", U"", U"ɔ"},
    {U"", U"ù", U"", U"y"},
    {U"", U"û", U"", U"y"},
    {U"", U"ü", U"", U"y"},
    {U"", U"œill", U"", U"œj"},
    {U"", U"œu", U"", U"Ø"},
    {U"", U"œ", U"", U"e"},
});
// clang-format on

struct ByFirstLetter {
    bool operator()(const Rule& rule, char32_t letter) const { return rule.letters[0] < letter; }
    bool operator()(char32_t letter, const Rule& rule) const { return letter < rule.letters[0]; }
};

static_assert(std::is_sorted(kRules.begin(), kRules.end(), [](const Rule& a, const Rule& b) {
    return a.letters[0] < b.letters[0];
}));

} // namespace

std::span<const SpellingRule> rulesFor(char32_t letter)
{
    const auto [first, last] =
        std::equal_range(kRules.begin(), kRules.end(), letter, ByFirstLetter());
    return {first, last};
}

} // namespace lumora::sound
