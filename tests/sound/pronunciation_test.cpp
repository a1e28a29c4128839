// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sound/pronunciation.h"

#include "conjugator/text_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace lumora::sound {
namespace {

std::string cell(const std::string& field)
{
    return field == "-" ? "" : field;
}

TEST(Pronunciation, SaysTheRowsThatAreEasilySaidWrong)
{
    const auto table =
        conjugator::TextTable::read(LUMORA_ROWS, {"tense", "pronoun", "form", "ipa", "verb"});
    ASSERT_GT(table.records().size(), 200U);
    for (const auto& record : table.records()) {
        const auto& fields = record.fields;
        const auto pronoun = cell(fields[1]);
        const bool aspirated = fields[4] == "h";
        const auto verb = aspirated ? "" : cell(fields[4]);
        EXPECT_EQ(ipa({verb, pronoun, fields[2], fields[0], aspirated}), fields[3])
            << "rows.tsv:" << record.line << " " << pronoun << " " << fields[2];
    }
}

TEST(Pronunciation, FindsTheWordsOfATextThatIsReadAloud)
{
    struct Case {
        std::string text;
        Row row;
        std::string words;
    };
    const std::vector<Case> cases{
        {"il ou elle ou on va",
         {"aller", "", "", "indicatifPresent"},
         "0+2 il, 3+2 u, 6+4 ɛl, 11+2 u, 14+2 ɔ̃, 17+2 va"},
        {"ils ou elles aiment",
         {"aimer", "", "", "indicatifPresent"},
         "0+3 il, 4+2 u, 7+5 ɛlz‿, 13+6 ɛm"},
        {"j'ai paye", {"payer", "", "", "indicatifPresent"}, "0+2 ʒ, 2+2 e, 5+4 pɛj"},
        {"je paie, paye", {"payer", "", "", "indicatifPresent"}, "0+2 ʒə, 3+4 pɛ, 9+4 pɛj"},
        {"ils paient, payent", {"payer", "", "", "indicatifPresent"}, "0+3 il, 4+6 pɛ, 12+6 pɛj"},
        {"méfiez-vous", {"méfier", "", "", "imperatif"}, "0+7 mefje, 7+5 vu"},
        {"nous haïssons", {"haïr", "", "", "indicatifPresent", true}, "0+4 nu, 5+9 aisɔ̃"},
        {" finir", {"finir", "", "", "infinitif"}, "1+5 finiʁ"},
        {"", {"finir", "", "", "infinitif"}, ""},
        {"il finit", {"finir", "", "", "no tense"}, ""},
    };
    for (const auto& [text, row, expected] : cases) {
        std::string words;
        for (const auto& word : spokenWords(text, row)) {
            words += (words.empty() ? "" : ", ") + std::to_string(word.begin) + "+" +
                     std::to_string(word.length) + " " + word.ipa + (word.linked ? "‿" : "");
        }
        EXPECT_EQ(words, expected) << text;
    }
}

TEST(Pronunciation, OutlivesWhatIsNoFrench)
{
    for (const std::string form :
         {"", "\xff\xfe", "\xe2\x82", "''''", "(((", "1234", "-", ", , "}) {
        for (const std::string pronoun : {"", "je", "que j'", "/", "\xc3"}) {
            ipa({form, pronoun, form, "indicatifPresent"});
            spokenWords(pronoun + form, {form, pronoun, form, "imperatif"});
        }
    }
    EXPECT_EQ(ipa({"", "je", "parle", ""}), "");
}

} // namespace
} // namespace lumora::sound
