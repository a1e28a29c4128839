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

    const auto packed = index.packed();
    const auto again = WordIndex::unpacked(packed, 500);
    ASSERT_TRUE(again);
    EXPECT_EQ(again->packed(), packed);
    for (const auto& [word, verbs] : expected) {
        const auto found = again->find(word);
        EXPECT_EQ(std::vector<std::uint32_t>(found.begin(), found.end()),
                  std::vector<std::uint32_t>(verbs.begin(), verbs.end()))
            << word;
    }
    EXPECT_FALSE(WordIndex::unpacked(packed, 499)) << "a verb that is not there";
}

TEST(WordIndex, IsNotMadeOfDamagedBytes)
{
    WordIndex::Builder builder;
    for (std::uint32_t i = 0; i < 40; ++i) {
        builder.add("mange" + std::string(i % 7, 's') + std::to_string(i), i % 9);
    }
    const auto packed = std::move(builder).build().packed();
    for (std::size_t length = 0; length < packed.size(); ++length) {
        EXPECT_FALSE(WordIndex::unpacked(std::string_view{packed}.substr(0, length), 9)) << length;
    }
    EXPECT_FALSE(WordIndex::unpacked(packed + "a", 9));
    // Whatever else a byte may be: what is taken for an index can be used as one.
    for (std::size_t at = 0; at < packed.size(); ++at) {
        for (const char byte : {'\0', '\x7F', '\xFF', static_cast<char>(packed[at] + 1)}) {
            auto damaged = packed;
            damaged[at] = byte;
            if (const auto index = WordIndex::unpacked(damaged, 9)) {
                index->forEach([&](std::size_t number, std::string_view word) {
                    for (const auto verb : index->verbsOf(number)) {
                        EXPECT_LT(verb, 9U) << word;
                    }
                    index->find(word);
                });
            }
        }
    }
}

} // namespace
} // namespace lumora::lookup
