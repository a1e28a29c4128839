// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/text.h"

#include "text/pronoun.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

namespace lumora::text {

TEST(Text, UpperCaseIsTheFullMappingWithoutALanguage)
{
    const std::pair<const char*, const char*> cases[] = {
        {"s'asseoir z{`", "S'ASSEOIR Z{`"},
        {"être, œuvrer, haïr", "ÊTRE, ŒUVRER, HAÏR"},
        {"straße ﬁn", "STRASSE FIN"},
        {"i ÿ", "I Ÿ"},
        {"e\u0301", "E\u0301"},
        {"a\xffz", "A\uFFFDZ"},
    };
    for (const auto& [text, upper] : cases) {
        EXPECT_EQ(upperCased(text), upper);
    }
}

TEST(Text, ComposesCanonicallyAndReplacesMalformedBytes)
{
    const std::pair<const char*, const char*> cases[] = {
        {"plain", "plain"},
        {"e\u0301te\u0301", "été"},
        {"c\u0327a", "ça"},
        {"été œ", "été œ"},
        {"e\u0323\u0302", "ệ"},                   // two marks
        {"ﬁ ²", "ﬁ ²"},                           // compatibility forms stay
        {"\u212B", "Å"},                          // a single character with another composition
        {"a\xC3", "a\uFFFD"},                     // cut short
        {"\xC0\xAF", "\uFFFD\uFFFD"},             // an overlong solidus
        {"\xED\xA0\x80z", "\uFFFD\uFFFD\uFFFDz"}, // a surrogate
    };
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(composed(text), expected);
        EXPECT_EQ(composed(composed(text)), expected);
    }
    EXPECT_EQ(wellFormed("e\u0301\xff"), "e\u0301\uFFFD");
}

TEST(Text, OrdersByTheScalarsOfTheComposedForms)
{
    // U+FFFD before U+1F600: UTF-16 units would say otherwise.
    const std::vector<std::string> ordered = {"", "Z", "a", "aller", "é", "\uFFFD", "\U0001F600"};
    for (std::size_t left = 0; left < ordered.size(); ++left) {
        for (std::size_t right = 0; right < ordered.size(); ++right) {
            EXPECT_EQ(scalarLess(ordered[left], ordered[right]), left < right)
                << ordered[left] << " and " << ordered[right];
        }
    }
    EXPECT_FALSE(scalarLess("e\u0301", "é"));
    EXPECT_FALSE(scalarLess("é", "e\u0301"));
    EXPECT_TRUE(scalarLess("f", "e\u0301")) << "composed, é comes after f";
}

TEST(Text, FoldsCaseAccentsAndLigatures)
{
    const std::pair<const char*, const char*> cases[] = {
        {"Œuvrer", "oeuvrer"},  {"Ǽ", "ae"},        {"naître, ÉTÉ", "naitre, ete"},
        {"straße", "strasse"},  {"To Go", "to go"}, {"e\u0301te", "ete"},
        {"ça (s')", "ca (s')"},
    };
    for (const auto& [text, plain] : cases) {
        EXPECT_EQ(folded(text), plain);
    }
    EXPECT_EQ(withoutLigatures("désœuvré, œ"), "désoeuvré, oe");
}

TEST(Text, AnElidedPronounStandsRightBeforeItsForm)
{
    const std::pair<const char*, const char*> cases[] = {
        {"je", "je "},
        {"j'", "j'"},
        {"que j\u2019", "que j\u2019"},
        {"qu'il/elle/on", "qu'il/elle/on "},
        {"", ""},
    };
    for (const auto& [pronoun, before] : cases) {
        EXPECT_EQ(beforeForm(pronoun), before);
    }
}

} // namespace lumora::text
