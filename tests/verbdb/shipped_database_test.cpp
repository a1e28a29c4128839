// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "conjugator/grammar.h"
#include "verbdb/content.h"
#include "verbdb/simplify.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <unicode/normalizer2.h>

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lumora::verbdb {
namespace {

using Row = std::vector<std::string>;

/// Reads the database that ships.
class ShippedDatabase : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_EQ(sqlite3_open_v2(LUMORA_VERBS_DB, &database_, SQLITE_OPEN_READONLY, nullptr),
                  SQLITE_OK);
    }

    void TearDown() override { sqlite3_close(database_); }

    void forEachRow(const char* sql, const std::function<void(const Row&)>& visit)
    {
        sqlite3_stmt* statement = nullptr;
        ASSERT_EQ(sqlite3_prepare_v2(database_, sql, -1, &statement, nullptr), SQLITE_OK);
        Row row(static_cast<std::size_t>(sqlite3_column_count(statement)));
        std::size_t rows = 0;
        while (sqlite3_step(statement) == SQLITE_ROW) {
            for (std::size_t i = 0; i < row.size(); ++i) {
                const auto column = static_cast<int>(i);
                const auto* text = sqlite3_column_text(statement, column);
                row[i] = text == nullptr ? "NULL" : reinterpret_cast<const char*>(text);
            }
            visit(row);
            ++rows;
        }
        sqlite3_finalize(statement);
        EXPECT_GT(rows, 0U) << sql;
    }

    void expectNone(const char* sql)
    {
        sqlite3_stmt* statement = nullptr;
        ASSERT_EQ(sqlite3_prepare_v2(database_, sql, -1, &statement, nullptr), SQLITE_OK)
            << sqlite3_errmsg(database_);
        std::string first;
        if (sqlite3_step(statement) == SQLITE_ROW) {
            for (int i = 0; i < sqlite3_column_count(statement); ++i) {
                const auto* text = sqlite3_column_text(statement, i);
                first += std::string(text ? reinterpret_cast<const char*>(text) : "NULL") + " ";
            }
        }
        sqlite3_finalize(statement);
        EXPECT_EQ(first, "") << sql;
    }

    sqlite3* database_ = nullptr;
};

TEST_F(ShippedDatabase, HasOnlyFormsOfKnownTensesWithText)
{
    std::string types;
    for (const auto name : conjugator::kTenseNames) {
        types += (types.empty() ? "'" : ", '") + std::string(name) + "'";
    }
    expectNone(("SELECT verbid, type FROM conjugation WHERE type NOT IN (" + types + ")").c_str());
    expectNone("SELECT verbid, type FROM conjugation WHERE trim(verb) <> verb OR verb = ''");
    expectNone("SELECT verbid, verb FROM conjugation WHERE verb LIKE '%,%' AND display = 0");
    expectNone("SELECT verbid FROM conjugation WHERE verbid NOT IN (SELECT _id FROM verb)");
    expectNone("SELECT _id FROM verb WHERE _id NOT IN (SELECT verbid FROM conjugation WHERE"
               " type = 'infinitif' AND display = 1)");
    expectNone("SELECT verbid FROM conjugation WHERE display NOT IN (0, 1)");
    expectNone("SELECT a.verbid, a.conj_order FROM conjugation a JOIN conjugation b ON b.verbid ="
               " a.verbid AND b.conj_order = a.conj_order + 1 WHERE a.display < b.display");
    expectNone("SELECT verbid FROM conjugation GROUP BY verbid"
               " HAVING count(DISTINCT conj_order) <> count(*)");
    expectNone("SELECT verbid, pronoun FROM conjugation WHERE (pronoun = '') <>"
               " (type IN ('imperatif', 'infinitif', 'participe'))");
}

/// "que j'" and "je me" are je; the impersonal il is il/elle/on.
std::size_t personOf(std::string pronoun)
{
    constexpr std::array<std::string_view, 6> subjects{"j",    "tu",   "il",
                                                       "nous", "vous", "ils/elles"};
    if (pronoun.starts_with("qu")) {
        pronoun = pronoun.substr(pronoun.find_first_of(" '") + 1);
    }
    for (std::size_t person = subjects.size(); person-- > 0;) {
        if (pronoun.starts_with(subjects[person])) {
            return person;
        }
    }
    ADD_FAILURE() << pronoun;
    return 0;
}

TEST_F(ShippedDatabase, GivesEachTenseItsPersonsInOrder)
{
    std::map<std::pair<std::string, std::string>, std::vector<std::size_t>> personsOf;
    forEachRow("SELECT verbid, type, pronoun FROM conjugation WHERE display = 1 AND pronoun <> ''"
               " ORDER BY verbid, conj_order",
               [&](const Row& row) {
                   personsOf[{row[0], row[1]}].push_back(personOf(row[2]));
               });

    constexpr std::size_t kPersonalTenses = 15;
    const std::vector<std::size_t> all{0, 1, 2, 3, 4, 5};
    std::map<std::string, std::size_t> fullTenses;
    for (const auto& [tense, persons] : personsOf) {
        EXPECT_TRUE(std::is_sorted(persons.begin(), persons.end(), std::less_equal<>()))
            << tense.first << " " << tense.second;
        fullTenses[tense.first] += persons == all ? 1 : 0;
    }
    for (const auto& verb : readContent(LUMORA_CONTENT_DIR).verbs) {
        if (!verb.entry.defective && !verb.entry.impersonal) {
            EXPECT_EQ(fullTenses[std::to_string(verb.id)], kPersonalTenses)
                << verb.entry.infinitive << " lacks forms and is not marked defective";
        }
    }
}

TEST_F(ShippedDatabase, FoldsEveryHeadwordAndTranslation)
{
    forEachRow("SELECT french, simplified_french, german, simplified_german, dutch,"
               " simplified_dutch, spanish, simplified_spanish, italian, simplified_italian,"
               " portuguese, simplified_portuguese FROM verb",
               [](const Row& row) {
                   for (std::size_t i = 0; i < row.size(); i += 2) {
                       EXPECT_EQ(row[i + 1], simplified(row[i]));
                       EXPECT_EQ(row[i + 1].find_first_not_of("abcdefghijklmnopqrstuvwxyz -,'"),
                                 std::string::npos)
                           << row[i + 1];
                   }
               });
}

TEST_F(ShippedDatabase, HasComposedTextWithPlainApostrophes)
{
    UErrorCode error = U_ZERO_ERROR;
    const auto* nfc = icu::Normalizer2::getNFCInstance(error);
    const auto check = [&](const Row& row) {
        for (const auto& text : row) {
            if (nfc->isNormalizedUTF8(text, error) == 0 ||
                text.find("\u2019") != std::string::npos) {
                ADD_FAILURE() << text;
            }
        }
    };
    forEachRow("SELECT french, english, german, dutch, spanish, italian, portuguese FROM verb",
               check);
    forEachRow("SELECT DISTINCT verb FROM conjugation", check);
}

} // namespace
} // namespace lumora::verbdb
