// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/storage/database_queue.h"

#include "support/statements.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <thread>
#include <vector>

namespace lumora::platform {

namespace {

using support::executeOn;
using support::rowsOf;
using support::TemporaryFolder;
using support::writeContent;

class DatabaseTest : public testing::Test {
protected:
    /// Runs `block` on the file of this test.
    void in(const std::function<void(Database&)>& block) { queue->inDatabase(block); }

    TemporaryFolder folder;
    std::unique_ptr<DatabaseQueue> queue = DatabaseQueue::open(fileUrl(folder / "verbs.db"));
};

} // namespace

TEST_F(DatabaseTest, ValuesComeBackAsTheyWereBound)
{
    const std::string awkward = std::string("l'\"é%_;--\0?", 12) + "\xF0\x9F\x98\x80";
    constexpr auto kLowest = std::numeric_limits<std::int64_t>::min();

    in([&](Database& database) {
        auto rows = database.executeQuery("SELECT ?, ? AS b, ? AS 'Ça', ? IS NULL, ? IS NULL",
                                          {kLowest, 0.1, awkward, nullptr, std::string()});
        ASSERT_TRUE(rows);
        ASSERT_TRUE(rows->next());
        EXPECT_EQ(rows->longForColumn(0), kLowest);
        EXPECT_EQ(rows->doubleForColumn(rows->columnIndex("B")), 0.1);
        EXPECT_EQ(rows->stringForColumn(rows->columnIndex("Ça")), awkward);
        EXPECT_TRUE(rows->boolForColumn(3));
        EXPECT_FALSE(rows->boolForColumn(4)) << "an empty text is not NULL";
        EXPECT_FALSE(rows->next());
        EXPECT_FALSE(rows->next()) << "a finished set must not start again";
        EXPECT_FALSE(rows->failed());
    });
}

TEST_F(DatabaseTest, NullAndAbsentColumnsReadAsZeroAndEmpty)
{
    in([&](Database& database) {
        auto rows = database.executeQuery("SELECT NULL AS none", {});
        ASSERT_TRUE(rows);
        ASSERT_TRUE(rows->next());
        for (const int column : {0, rows->columnIndex("missing"), 7}) {
            SCOPED_TRACE(column);
            EXPECT_EQ(rows->longForColumn(column), 0);
            EXPECT_EQ(rows->doubleForColumn(column), 0.0);
            EXPECT_FALSE(rows->boolForColumn(column));
            EXPECT_EQ(rows->stringForColumn(column), "");
        }
        EXPECT_EQ(rows->columnIndex("missing"), -1);
        EXPECT_EQ(rows->columnIndex("non"), -1);
    });
}

TEST_F(DatabaseTest, FailuresCarryThePrimaryCodeAndSurviveTheNextSuccess)
{
    in([&](Database& database) {
        executeOn(database, "CREATE TABLE verb (id INTEGER PRIMARY KEY, name TEXT UNIQUE)");
        executeOn(database, "INSERT INTO verb VALUES (1, 'aller')");

        const std::pair<const char*, int> cases[] = {
            {"SELECT nothing FROM verb", SQLITE_ERROR},
            {"INSERT INTO verb VALUES (2, 'aller')", SQLITE_CONSTRAINT}, // extended: unique
            {"INSERT INTO verb VALUES ('x', 'être')", SQLITE_MISMATCH},
        };
        for (const auto& [sql, code] : cases) {
            SCOPED_TRACE(sql);
            const auto failed = database.executeUpdate(sql, {});
            ASSERT_FALSE(failed);
            EXPECT_EQ(failed.error().code, code);
            EXPECT_FALSE(failed.error().message.empty());
            EXPECT_EQ(rowsOf(database, "SELECT name FROM verb"), std::vector<std::string>{"aller"});
            EXPECT_EQ(database.lastErrorCode(), code);
            EXPECT_EQ(database.lastErrorMessage(), failed.error().message);
        }
    });
}

TEST_F(DatabaseTest, AWrongNumberOfValuesIsAMistakeOfOurs)
{
    in([&](Database& database) {
        EXPECT_DEBUG_DEATH(EXPECT_FALSE(database.executeQuery("SELECT ?, ?", {nullptr})),
                           "question marks");
        EXPECT_DEBUG_DEATH(EXPECT_FALSE(database.executeUpdate("SELECT 1", {nullptr})),
                           "question marks");
    });
}

TEST_F(DatabaseTest, ARowSetIsNotDisturbedByTheSameStatementInside)
{
    in([&](Database& database) {
        executeOn(database, "CREATE TABLE verb (id INTEGER)");
        executeOn(database, "INSERT INTO verb VALUES (1), (2), (3)");
        std::size_t pairs = 0;
        auto outer = database.executeQuery("SELECT id FROM verb", {});
        while (outer && outer->next()) {
            pairs += rowsOf(database, "SELECT id FROM verb").size();
        }
        EXPECT_EQ(pairs, 9U);
    });
}

TEST_F(DatabaseTest, ARowSetThatOutlivesTheConnectionEndsAndLetsGoOfTheFile)
{
    std::optional<ResultSet> kept;
    in([&](Database& database) {
        executeOn(database, "CREATE TABLE verb (id INTEGER)");
        executeOn(database, "INSERT INTO verb VALUES (1), (2)");
        kept = std::move(*database.executeQuery("SELECT id FROM verb", {}));
        ASSERT_TRUE(kept->next());

        database.close();

        EXPECT_EQ(kept->longForColumn(0), 0);
        EXPECT_FALSE(kept->next());
        EXPECT_TRUE(kept->failed());
        EXPECT_EQ(database.executeUpdate("SELECT 1", {}).error().code, SQLITE_MISUSE);
    });
    in([&](Database& database) {
        EXPECT_TRUE(database.isOpen());
        executeOn(database, "DROP TABLE verb"); // fails while anyone reads
    });
}

TEST_F(DatabaseTest, AConnectionThatDoesNotOpenAgainFailsEveryStatementWithTheReason)
{
    in([](Database& database) { database.close(); });
    std::filesystem::remove(folder / "verbs.db");
    std::filesystem::create_directory(folder / "verbs.db");

    in([](Database& database) {
        EXPECT_FALSE(database.isOpen());
        EXPECT_EQ(database.executeUpdate("SELECT 1", {}).error().code, SQLITE_CANTOPEN);
        EXPECT_FALSE(database.executeQuery("SELECT 1", {}));
        EXPECT_EQ(database.lastErrorCode(), SQLITE_CANTOPEN);
    });
    std::filesystem::remove(folder / "verbs.db");

    executeOn(*queue, "SELECT 1");
}

TEST_F(DatabaseTest, ACorruptFileFailsTheStatementAndNotTheProgram)
{
    in([&](Database& database) {
        executeOn(database, "CREATE TABLE verb (name TEXT)");
        executeOn(database, "BEGIN");
        for (int row = 0; row < 500; ++row) {
            executeOn(database, "INSERT INTO verb VALUES (?)", {std::string(100, 'x')});
        }
        executeOn(database, "COMMIT");
        database.close();
    });
    // The head stays good, so that the failure comes while stepping.
    std::string bytes = support::contentOf(folder / "verbs.db");
    std::fill(bytes.begin() + std::ptrdiff_t{3} * 4096, bytes.end(), '\xA5');
    writeContent(folder / "verbs.db", bytes);

    in([](Database& database) {
        auto rows = database.executeQuery("SELECT name FROM verb", {});
        ASSERT_TRUE(rows);
        while (rows->next()) {
        }
        EXPECT_TRUE(rows->failed());
        EXPECT_EQ(database.lastErrorCode(), SQLITE_CORRUPT);
    });

    writeContent(folder / "text.db", std::string(5000, 'x'));
    const auto text = DatabaseQueue::open((folder / "text.db").string());
    ASSERT_NE(text, nullptr);
    text->inDatabase([](Database& database) {
        EXPECT_EQ(database.executeQuery("SELECT * FROM verb", {}).error().code, SQLITE_NOTADB);
    });
}

TEST(DatabaseQueue, OpensTheVeryFileWhateverItsName)
{
    const TemporaryFolder folder;
    for (const std::string_view name :
         {"a b.db", "100%25.db", "what?mode=ro.db", "no#fragment.db", "été.db", "a&b+c;'.db"}) {
        SCOPED_TRACE(name);
        const auto queue = DatabaseQueue::open(fileUrl(folder / name));
        ASSERT_NE(queue, nullptr);
        executeOn(*queue, "CREATE TABLE verb (id)");
        EXPECT_GT(std::filesystem::file_size(folder / name), 0U);
    }
    EXPECT_EQ(fileUrl("/tmp/à (1)~.db"), "file:///tmp/%C3%A0%20%281%29~.db");
    EXPECT_EQ(DatabaseQueue::open(fileUrl(folder / "missing/verbs.db")), nullptr);
}

TEST(DatabaseQueue, BlocksOfTwoThreadsDoNotMix)
{
    const TemporaryFolder folder;
    const auto queue = DatabaseQueue::open(fileUrl(folder / "verbs.db"));
    int inside = 0;
    const auto work = [&] {
        for (int turn = 0; turn < 200; ++turn) {
            queue->inDatabase([&](Database& database) {
                ++inside;
                EXPECT_TRUE(database.executeUpdate("SELECT 1", {}));
                EXPECT_EQ(inside, 1);
                --inside;
            });
        }
    };

    std::thread other(work);
    work();
    other.join();
}

TEST(DatabaseQueueDeathTest, ABlockInsideABlockStopsTheProgram)
{
    const auto queue = DatabaseQueue::open(":memory:");

    EXPECT_DEATH(queue->inDatabase([&](Database&) { queue->inDatabase([](Database&) {}); }),
                 "block inside a block");
}

} // namespace lumora::platform
