// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/form_search/packed_search.h"

#include "platform/form_search/packed_pattern.h"
#include "platform/storage/database_queue.h"
#include "support/statements.h"
#include "support/stock_sqlite.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace lumora::platform {
namespace {

using support::executeOn;
using support::rowsOf;
using support::TemporaryFolder;
using Ids = std::vector<std::string>;

const PackedColumn kForms{"conjugation", "verbid", "verb", "packed_forms", "forms", "verb"};

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
    const std::vector<std::string> unfolded = {
        "",       "Vais",          "suis ALLÉE",         "\303as",
        "Z[a@`{", "\xC3\xA9\xA9z", "aaaaaaaaaaaaaaaaAB", std::string(126, 'x') + "AbAb",
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
            for (const auto& text : unfolded) {
                ASSERT_EQ(compiled.matches(text),
                          sqlite3_strlike(pattern.c_str(), text.c_str(), 0) == 0)
                    << testing::PrintToString(pattern) << " in " << testing::PrintToString(text);
            }
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
            EXPECT_TRUE(PackedPattern("%aB%").matches(text)) << text;
            EXPECT_FALSE(PackedPattern("%ba%").matches(text)) << text;
        }
    }
}

class PackedSearchTest : public testing::Test {
protected:
    void SetUp() override
    {
        for (const char* sql :
             {"CREATE TABLE verb(_id INTEGER PRIMARY KEY, french TEXT)",
              "CREATE TABLE conjugation(verbid INTEGER, verb TEXT, type TEXT)",
              "CREATE TABLE packed_forms(verbid INTEGER PRIMARY KEY, forms BLOB)",
              "INSERT INTO verb VALUES (1, 'avoir'), (2, 'être'), (3, 'aller'), (9, 'sans')",
              "INSERT INTO conjugation VALUES (1, 'ai', 'p'), (1, 'as', 'p'), (2, 'Suis', 'p'), "
              "(2, 'es', 'p'), (3, 'vais', 'p'), (3, 'suis allé', 'c')",
              "INSERT INTO packed_forms SELECT verbid, CAST(char(0) || group_concat(lower(verb) || "
              "char(0), '') AS BLOB) FROM conjugation GROUP BY verbid"}) {
            executeOn(*queue, sql);
        }
    }

    /// The verbs with a matching form, and in `fast` whether they came fast.
    Ids search(const char* pattern, bool& fast)
    {
        Ids ids;
        queue->inDatabase([&](Database& database) {
            const PackedSearch search(database, kForms);
            fast = search.isActive();
            ids = rowsOf(database, kSearch, {std::string(pattern)});
        });
        return ids;
    }

    static constexpr const char* kSearch =
        "SELECT verb._id FROM verb LEFT OUTER JOIN conjugation ON verb._id = conjugation.verbid "
        "WHERE conjugation.verb like ? GROUP BY verb._id ORDER BY french";

    TemporaryFolder folder;
    std::unique_ptr<DatabaseQueue> queue = DatabaseQueue::open(fileUrl(folder / "verbs.db"));
};

TEST_F(PackedSearchTest, FindsTheSameFastAndWithoutTheHelperTable)
{
    bool fast = false;
    EXPECT_EQ(search("SUIS%", fast), (Ids{"3", "2"}));
    EXPECT_TRUE(fast);
    EXPECT_EQ(search("", fast), Ids{});

    // What was read stays with the queue, not with the connection.
    executeOn(*queue, "UPDATE packed_forms SET forms = x'78'");
    queue->inDatabase([](Database& database) { database.close(); });
    EXPECT_EQ(search("a_", fast), Ids{"1"});
    EXPECT_TRUE(fast);

    for (const char* spoil :
         {"SELECT 1", "UPDATE packed_forms SET forms = 7", "DROP TABLE packed_forms"}) {
        executeOn(*queue, spoil);
        queue = DatabaseQueue::open(fileUrl(folder / "verbs.db"));
        EXPECT_EQ(search("suis%", fast), (Ids{"3", "2"})) << spoil;
        EXPECT_FALSE(fast) << spoil;
    }
}

TEST_F(PackedSearchTest, LeavesEveryOtherStatementTheRealTable)
{
    queue->inDatabase([&](Database& database) {
        const char* const count =
            "SELECT count(*) FROM verb JOIN conjugation ON verb._id = conjugation.verbid";
        {
            const PackedSearch search(database, kForms);
            EXPECT_EQ(rowsOf(database, count), Ids{"3"}) << "one row a verb";
        }
        EXPECT_EQ(rowsOf(database, count), Ids{"6"});
        EXPECT_EQ(rowsOf(database, "SELECT count(*) FROM conjugation WHERE type = 'c'"), Ids{"1"});
        EXPECT_EQ(rowsOf(database, "SELECT count(*) FROM sqlite_temp_master"), Ids{"0"});
    });
    executeOn(*queue, "DELETE FROM conjugation WHERE verbid = 3");

    queue->inDatabase([&](Database& database) {
        auto rows = database.executeQuery("SELECT 1", {});
        {
            const PackedSearch search(database, kForms);
            rows = database.executeQuery(kSearch, {std::string("%")});
            ASSERT_TRUE(rows->next());
        }
        EXPECT_FALSE(database.isOpen()) << "rows outlived the search: it is given up";
    });
    EXPECT_EQ(rowsOf(*queue, "SELECT count(*) FROM conjugation"), Ids{"4"});
}

TEST_F(PackedSearchTest, LikesWhatTheBuiltInDoes)
{
    const std::string both =
        "WITH all_values(v) AS (VALUES (NULL), ('10'), (10), (1.5), (x'3130'), (''), ('%'), "
        "('1%'), ('É'), ('%b%'), (char(97, 0, 98))) SELECT group_concat(ifnull(a.v LIKE b.v, "
        "'n')) FROM all_values a, all_values b";
    const auto builtIn = support::joinedRows(":memory:", both);
    EXPECT_EQ(rowsOf(*queue, both), builtIn);
    EXPECT_EQ(builtIn.at(0).size(), 241U);
}

TEST_F(PackedSearchTest, SurvivesASchemaChangeByAnotherConnection)
{
    const auto other = DatabaseQueue::open(fileUrl(folder / "verbs.db"));
    int tables = 0;
    const auto change = [&] {
        executeOn(*other, "CREATE TABLE other" + std::to_string(tables++) + "(a)");
    };
    queue->inDatabase([&](Database& database) {
        const PackedSearch search(database, kForms);
        ASSERT_TRUE(search.isActive());
        auto rows = database.executeQuery(kSearch, {std::string("%ai%")});
        ASSERT_TRUE(rows);
        change(); // Prepared, not yet stepped.
        Ids ids;
        while (rows->next()) {
            ids.push_back(rows->stringForColumn(0));
        }
        EXPECT_FALSE(rows->failed()) << database.lastErrorMessage();
        EXPECT_EQ(ids, (Ids{"3", "1"}));

        change(); // Between two statements of one search.
        EXPECT_EQ(rowsOf(database, kSearch, {std::string("%ai%")}), (Ids{"3", "1"}));
    });
    change();
    bool fast = false;
    EXPECT_EQ(search("e%", fast), Ids{"2"});
    EXPECT_TRUE(fast);
}

TEST_F(PackedSearchTest, FailsAsTheRealTableDoes)
{
    const std::string tooLong(50001, 'a');
    bool fast = false;
    search("a", fast);
    for (const bool standIn : {true, false}) {
        queue->inDatabase([&](Database& database) {
            std::optional<PackedSearch> search;
            if (standIn) {
                search.emplace(database, kForms);
            }
            auto rows = database.executeQuery(kSearch, {tooLong});
            ASSERT_TRUE(rows);
            EXPECT_FALSE(rows->next());
            EXPECT_TRUE(rows->failed());
            EXPECT_EQ(database.lastErrorMessage(), "LIKE or GLOB pattern too complex");
        });
    }
}

} // namespace
} // namespace lumora::platform
