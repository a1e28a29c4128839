// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/form_search/packed_pattern.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace lumora::platform {
namespace {

std::string packed(const std::vector<std::string>& texts)
{
    std::string bytes(1, '\0');
    for (const auto& text : texts) {
        bytes += text + '\0';
    }
    return bytes;
}

TEST(PackedPattern, AnswersAsLikeDoesWhateverTheBytes)
{
    const std::vector<std::vector<std::string>> verbs = {
        {"vais", "suis allé, suis allée", "va"},
        {"étés", "\u00e9", "a\u0080z", "œuvrons", "\uFFFDx", "a\U0001F600b"},
        {"abababac", "aab", std::string(70, 'a') + "b", "b"},
        {""},
        {},
    };
    // Whole characters, halves of them, overlong and impossible ones.
    const std::vector<std::string> pieces = {"%",
                                             "%",
                                             "_",
                                             "_",
                                             "a",
                                             "b",
                                             "A",
                                             "V",
                                             "s",
                                             "é",
                                             "É",
                                             "\xC3",
                                             "\xA9",
                                             "\x80",
                                             " ",
                                             "all",
                                             "\xC1\xA1",
                                             "\xED\xA0\x80",
                                             "\xEF\xBF\xBE",
                                             "\uFFFD",
                                             "\U0001F600",
                                             "x",
                                             "\xFF",
                                             "ab",
                                             "\xFE\xA9",
                                             "suis",
                                             "œ",
                                             "\xF9\x81\x81\x81\x81"};
    std::vector<std::string> patterns = {"",
                                         "%",
                                         "%%",
                                         "%_%",
                                         std::string("va\0%", 4),
                                         std::string(63, '_') + "%",
                                         std::string(64, '_') + "%",
                                         "%" + std::string(66, '_') + "b",
                                         std::string(80, '_'),
                                         std::string(70, 'a') + "_"};
    std::mt19937 random(20240607);
    for (int i = 0; i < 20000; ++i) {
        std::string pattern;
        for (auto left = random() % 7; left > 0; --left) {
            pattern += pieces[random() % pieces.size()];
        }
        patterns.push_back(pattern + (random() % 2 == 0 ? "%" : ""));
    }
    for (const auto& pattern : patterns) {
        const PackedPattern compiled(pattern);
        for (const auto& texts : verbs) {
            const bool expected =
                std::any_of(texts.begin(), texts.end(), [&](const std::string& text) {
                    return sqlite3_strlike(pattern.c_str(), text.c_str(), 0) == 0;
                });
            ASSERT_EQ(compiled.matchesAny(packed(texts)), expected)
                << testing::PrintToString(pattern) << " in " << testing::PrintToString(texts);
        }
    }
}

TEST(PackedPattern, FindsAcrossTheBlocksItReads)
{
    for (std::size_t before = 0; before < 40; ++before) {
        for (const std::size_t after : {0U, 1U, 15U, 40U}) {
            const std::string text = std::string(before, 'x') + "ab" + std::string(after, 'y');
            EXPECT_TRUE(PackedPattern("%ab%").matchesAny(packed({text}))) << text;
            EXPECT_EQ(PackedPattern("%ab").matchesAny(packed({text})), after == 0) << text;
            EXPECT_EQ(PackedPattern("ab%").matchesAny(packed({"z", text})), before == 0) << text;
            EXPECT_FALSE(PackedPattern("%ba%").matchesAny(packed({text}))) << text;
        }
    }
}

} // namespace
} // namespace lumora::platform
