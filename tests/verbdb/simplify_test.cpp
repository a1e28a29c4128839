// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "verbdb/simplify.h"

#include <gtest/gtest.h>

namespace lumora::verbdb {
namespace {

TEST(Simplified, FoldsTextAsPeopleTypeIt)
{
    const std::pair<const char*, const char*> cases[] = {
        {"être", "etre"},
        {"œuvrer", "oeuvrer"},
        {"Œuvrer", "oeuvrer"},
        {"cæsium", "caesium"},
        {"évanouir (s')", "evanouir"},
        {"größer machen, heißen", "grosser machen, heissen"},
        {"misstrauen, hüten (sich)", "misstrauen, huten"},
        {"enthalten (sich), verzichten", "enthalten, verzichten"},
        {"denken (à, de), glauben", "denken, glauben"},
        {"erinnern (sich) (de), merken", "erinnern, merken"},
        {"Rad fahren", "rad fahren"},
        {"enseñar, reírse", "ensenar, reirse"},
        {"coördineren", "coordineren"},
        {"pôr à mão", "por a mao"},
        {"crème (brûler) fouetter", "creme (bruler) fouetter"},
    };
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(simplified(text), expected);
    }
}

} // namespace
} // namespace lumora::verbdb
