// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/text.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

namespace lumora::platform {

TEST(Text, UpperCaseIsTheFullMappingWithoutALanguage)
{
    struct Case {
        const char* text;
        const char* upper;
    };
    for (const auto& [text, upper] : {
             Case{"s'asseoir z{`", "S'ASSEOIR Z{`"},
             Case{"être, œuvrer, haïr", "ÊTRE, ŒUVRER, HAÏR"},
             Case{"straße ﬁn", "STRASSE FIN"},
             Case{"i ÿ", "I Ÿ"},
             Case{"e\u0301", "E\u0301"},
             Case{"a\xffz", "A\uFFFDZ"},
         }) {
        EXPECT_EQ(upperCased(text), upper);
    }
}

TEST(Text, ComposesCanonicallyAndReplacesMalformedBytes)
{
    struct Case {
        const char* text;
        const char* composed;
    };
    for (const auto& [text, expected] : {
             Case{"plain", "plain"}, Case{"e\u0301te\u0301", "été"}, Case{"c\u0327a", "ça"},
             Case{"été œ", "été œ"}, Case{"e\u0323\u0302", "ệ"}, // two marks
             Case{"ﬁ ²", "ﬁ ²"},                                 // compatibility forms stay
             Case{"\u212B", "Å"},              // a single character with another composition
             Case{"a\xC3", "a\uFFFD"},         // cut short
             Case{"\xC0\xAF", "\uFFFD\uFFFD"}, // an overlong solidus
             Case{"\xED\xA0\x80z", "\uFFFD\uFFFD\uFFFDz"}, // a surrogate
         }) {
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

} // namespace lumora::platform
