// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/form_search/form_search.h"

#include "lists/search_query.h"
#include "lists/search_results_table_view_controller.h"
#include "support/search_texts.h"
#include "support/statements.h"
#include "support/stock_sqlite.h"
#include "support/temporary_folder.h"
#include "support/world.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace lumora {
namespace {

using support::World;

/// The database that ships, searched through its forms as the screen does and
/// on the real table.
class ShippedFormSearch : public testing::Test {
protected:
    using Rows = std::vector<support::Row>;

    void SetUp() override
    {
        std::filesystem::copy_file(LUMORA_VERBS_DB, world_.folder / "shipped.db");
        world_.queue =
            platform::DatabaseQueue::open(platform::fileUrl(world_.folder / "shipped.db"));
        world_.settings.setValue(true, "IncludeConjugations");
        world_.execute("INSERT INTO favourite (verbid) SELECT _id FROM verb WHERE _id % 7 = 0");
        world_.execute("INSERT INTO favourite (verbid) SELECT _id FROM verb WHERE _id % 21 = 0");
    }

    /// By SQLite as it comes, on a connection of its own.
    Rows onTheRealTable(const std::string& text) const
    {
        const auto query = lists::makeSearchQuery(text, world_.settings, world_.device);
        Rows found;
        support::forEachRow(
            world_.folder / "shipped.db", query.statement,
            [&](const support::Row& row) {
                found.push_back({row[0], row[2], row[15] == "NULL" ? "" : "favourite"});
            },
            query.pattern);
        return found;
    }

    Rows onTheScreen(const std::string& text)
    {
        results_.queue = world_.queue.get();
        results_.search(text);
        Rows found;
        for (const auto& verb : results_.verbs) {
            found.push_back(
                {std::to_string(verb->id), verb->french, verb->isFavourite ? "favourite" : ""});
        }
        return found;
    }

    World world_;
    lists::SearchResultsTableViewController results_{world_.services()};
};

TEST_F(ShippedFormSearch, ShowsWhatTheRealTableHolds)
{
    std::vector<std::string> texts(std::begin(support::kSearchTexts),
                                   std::end(support::kSearchTexts));
    const char* const pieces[] = {"a",  "E",    "r",    "ai",  "ons", "é",    "î",    "'",
                                  "_",  "%",    "ss",   "ent", " ",   "avoi", "\xC3", "\xA9",
                                  "(s", "\xFF", "\xE2", "ù",   "qu",  "été ", "ge",   "\u2019"};
    std::mt19937 random(19);
    for (int i = 0; i < 24; ++i) {
        std::string text;
        for (auto left = 1 + random() % 4; left > 0; --left) {
            text += pieces[random() % std::size(pieces)];
        }
        texts.push_back(text);
    }
    texts.emplace_back(300, 'e');
    texts.push_back(std::string(70, '_') + "e");

    std::size_t all = 0;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        SCOPED_TRACE(testing::PrintToString(texts[i]));
        world_.settings.setValue(std::string(i % 2 == 0 ? "S" : "W"), "SearchFrom");
        world_.settings.setValue(i % 3 != 0, "IncludeEnglish");
        world_.settings.setValue(i % 5 != 0, "SortByLang");
        world_.settings.setValue(i % 4 != 0, "IncludeConjugations");

        const Rows found = onTheScreen(texts[i]);

        EXPECT_EQ(found, onTheRealTable(texts[i]));
        all += found.size();
    }
    EXPECT_GT(all, 10000U);
}

/// Every verb's helper row says what its forms are.
TEST_F(ShippedFormSearch, TheHelperTableHoldsEveryFormOnce)
{
    EXPECT_EQ(world_.count("verb WHERE _id NOT IN (SELECT verbid FROM packed_forms)"), 0);
    EXPECT_EQ(world_.count("conjugation JOIN packed_forms USING (verbid) WHERE instr(forms, "
                           "x'00' || CAST(lower(verb) AS BLOB) || x'00') = 0"),
              0);
    EXPECT_EQ(world_.count("(SELECT verbid, sum(length(form) + 1) + 1 AS size FROM (SELECT "
                           "DISTINCT verbid, CAST(lower(verb) AS BLOB) AS form FROM conjugation) "
                           "GROUP BY verbid) JOIN packed_forms USING (verbid) WHERE "
                           "length(forms) <> size"),
              0);
    EXPECT_LT(std::filesystem::file_size(LUMORA_VERBS_DB), 66U * 1000 * 1000);
}

using Ids = std::vector<std::string>;
using platform::Database;
using platform::DatabaseQueue;

class FormSearch : public testing::Test {
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
            support::executeOn(*queue, sql);
        }
    }

    Ids search(Database& database, const std::string& pattern, const std::string& prefix = "",
               int column = 0)
    {
        Ids ids;
        forms->executeQuery(database, prefix + kSearch, {pattern},
                            [&](platform::Result<platform::ResultSet>& rows) {
                                ASSERT_TRUE(rows) << database.lastErrorMessage();
                                while (rows->next()) {
                                    ids.push_back(rows->stringForColumn(column));
                                }
                                EXPECT_FALSE(rows->failed()) << database.lastErrorMessage();
                            });
        return ids;
    }

    Ids search(const std::string& pattern)
    {
        Ids ids;
        queue->inDatabase([&](Database& database) { ids = search(database, pattern); });
        return ids;
    }

    /// Whether both tables of the search are read from memory.
    bool isFast()
    {
        Ids plan;
        queue->inDatabase(
            [&](Database& database) { plan = search(database, "a", "EXPLAIN QUERY PLAN ", 3); });
        return std::count_if(plan.begin(), plan.end(), [](const std::string& step) {
                   return step.find("VIRTUAL TABLE") != std::string::npos;
               }) == 2;
    }

    /// As after a start of the program.
    void startAnew()
    {
        queue = DatabaseQueue::open(platform::fileUrl(folder / "verbs.db"));
        forms.emplace();
    }

    static constexpr const char* kSearch =
        "SELECT verb._id FROM verb LEFT OUTER JOIN conjugation ON verb._id = conjugation.verbid "
        "WHERE conjugation.verb like ? GROUP BY verb._id ORDER BY french";

    support::TemporaryFolder folder;
    std::unique_ptr<DatabaseQueue> queue =
        DatabaseQueue::open(platform::fileUrl(folder / "verbs.db"));
    std::optional<platform::FormSearch> forms{std::in_place};
};

TEST_F(FormSearch, FindsWhatTheRealTablesHold)
{
    const char* const pieces[] = {"a", "A",  "i",  "s",    "S",   "é",    "É",    "%",
                                  "_", "ai", "is", "suis", " al", "\xC3", "\xA9", ""};
    std::mt19937 random(5);
    std::size_t found = 0;
    for (int i = 0; i < 600; ++i) {
        std::string pattern = random() % 2 == 0 ? "%" : "";
        for (auto left = random() % 4; left > 0; --left) {
            pattern += pieces[random() % std::size(pieces)];
        }
        pattern += random() % 2 == 0 ? "%" : "";
        const Ids fast = search(pattern);
        queue->inDatabase([&](Database& database) {
            EXPECT_EQ(fast, support::rowsOf(database, kSearch, {pattern}))
                << testing::PrintToString(pattern);
        });
        found += fast.size();
    }
    EXPECT_TRUE(isFast());
    EXPECT_GT(found, 300U);
}

TEST_F(FormSearch, TellsThePatternsOfAStatementApart)
{
    Ids ids;
    queue->inDatabase([&](Database& database) {
        forms->executeQuery(database,
                            "SELECT verb._id FROM verb LEFT OUTER JOIN conjugation ON verb._id = "
                            "conjugation.verbid WHERE conjugation.verb LIKE ? OR conjugation.verb "
                            "LIKE ? GROUP BY verb._id",
                            {std::string("as"), std::string("es")},
                            [&](platform::Result<platform::ResultSet>& rows) {
                                while (rows->next()) {
                                    ids.push_back(rows->stringForColumn(0));
                                }
                            });
    });
    EXPECT_EQ(ids, (Ids{"1", "2"}));
}

TEST_F(FormSearch, IsFastOnlyWithAHelperTableThatIsWhole)
{
    EXPECT_TRUE(isFast());
    EXPECT_EQ(search("SUIS%"), (Ids{"3", "2"}));

    // What was read stays when the connection ends.
    support::executeOn(*queue, "UPDATE packed_forms SET forms = x'78'");
    queue->inDatabase([](Database& database) { database.close(); });
    EXPECT_EQ(search("a_"), Ids{"1"});
    EXPECT_TRUE(isFast());

    for (const char* spoil :
         {"SELECT 1", "UPDATE packed_forms SET forms = 7", "DROP TABLE packed_forms"}) {
        support::executeOn(*queue, spoil);
        startAnew();
        EXPECT_EQ(search("suis%"), (Ids{"3", "2"})) << spoil;
        EXPECT_FALSE(isFast()) << spoil;
    }
}

TEST_F(FormSearch, LeavesEveryOtherStatementTheRealTables)
{
    queue->inDatabase([&](Database& database) {
        const char* const count =
            "SELECT count(*) FROM verb JOIN conjugation ON verb._id = conjugation.verbid";
        search(database, "a%");
        EXPECT_EQ(support::rowsOf(database, count), Ids{"6"});
        EXPECT_EQ(support::rowsOf(database, "SELECT count(*) FROM sqlite_temp_master"), Ids{"0"});
    });
    support::executeOn(*queue, "DELETE FROM conjugation WHERE verbid = 3");

    queue->inDatabase([&](Database& database) {
        auto kept = database.executeQuery("SELECT 1", {});
        forms->executeQuery(database, kSearch, {std::string("%")},
                            [&](platform::Result<platform::ResultSet>& rows) {
                                ASSERT_TRUE(rows->next());
                                kept = std::move(rows);
                            });
        EXPECT_FALSE(database.isOpen()) << "rows outlived the search: it is given up";
        EXPECT_FALSE(kept->next());
    });
    EXPECT_EQ(support::rowsOf(*queue, "SELECT count(*) FROM conjugation"), Ids{"4"});
}

TEST_F(FormSearch, SurvivesASchemaChangeByAnotherConnection)
{
    const auto other = DatabaseQueue::open(platform::fileUrl(folder / "verbs.db"));
    int tables = 0;
    const auto change = [&] {
        support::executeOn(*other, "CREATE TABLE other" + std::to_string(tables++) + "(a)");
    };
    queue->inDatabase([&](Database& database) {
        forms->executeQuery(database, kSearch, {std::string("%ai%")},
                            [&](platform::Result<platform::ResultSet>& rows) {
                                change(); // Prepared, not yet stepped.
                                Ids ids;
                                while (rows->next()) {
                                    ids.push_back(rows->stringForColumn(0));
                                }
                                EXPECT_FALSE(rows->failed()) << database.lastErrorMessage();
                                EXPECT_EQ(ids, (Ids{"3", "1"}));
                            });
        change(); // Between two searches of a block.
        EXPECT_EQ(search(database, "%ai%"), (Ids{"3", "1"}));
    });
    change();
    EXPECT_EQ(search("e%"), Ids{"2"});
    EXPECT_TRUE(isFast());
}

TEST_F(FormSearch, FailsAsOnTheRealTables)
{
    const std::string tooLong(50001, 'a');
    queue->inDatabase([&](Database& database) {
        const auto fail = [&](platform::Result<platform::ResultSet>& rows) {
            ASSERT_TRUE(rows);
            EXPECT_FALSE(rows->next());
            EXPECT_TRUE(rows->failed());
            EXPECT_EQ(database.lastErrorMessage(), "LIKE or GLOB pattern too complex");
        };
        forms->executeQuery(database, kSearch, {tooLong}, fail);
        auto rows = database.executeQuery(kSearch, {tooLong});
        fail(rows);
    });
}

} // namespace
} // namespace lumora
