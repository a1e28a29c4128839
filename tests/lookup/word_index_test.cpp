// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/word_index.h"

#include <map>
#include <set>

#include <gtest/gtest.h>

namespace lumora::lookup {
namespace {

TEST(WordIndex, HoldsWhatWasAddedAndNoMore)
{
    std::map<std::string, std::set<std::uint32_t>> expected;
    WordIndex::Builder builder;
    const auto add = [&](const std::string& word, std::uint32_t verb) {
        builder.add(word, verb);
        expected[word].insert(verb);
    };
    // More words than a block, most with a beginning in common; doubles too.
    for (std::uint32_t i = 0; i < 500; ++i) {
        add("par" + std::to_string(i * 7919 % 1000), i % 5);
        add("z" + std::string(i % 50, 'a'), i);
        add("z" + std::string(i % 50, 'a'), i);
    }
    add(std::string(255, 'x'), 9);
    builder.add(std::string(256, 'x'), 9);
    builder.add("", 9);

    const auto index = std::move(builder).build();

    EXPECT_EQ(index.size(), expected.size());
    for (const auto& [word, verbs] : expected) {
        const auto found = index.find(word);
        EXPECT_EQ(std::vector<std::uint32_t>(found.begin(), found.end()),
                  std::vector<std::uint32_t>(verbs.begin(), verbs.end()))
            << word;
    }
    for (const char* absent : {"", "a", "par", "par1000", "zzz", "\xFF"}) {
        EXPECT_TRUE(index.find(absent).empty()) << absent;
    }
    auto next = expected.begin();
    index.forEach([&](std::size_t, std::string_view word) { EXPECT_EQ(word, next++->first); });
    EXPECT_EQ(next, expected.end());
    EXPECT_TRUE(WordIndex::Builder{}.build().find("a").empty());
}

} // namespace
} // namespace lumora::lookup
