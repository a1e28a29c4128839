// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/start_up_fixture.h"

#include "app/rescue_file.h"
#include "platform/files/folder_lock.h"
#include "platform/storage/file_settings_store.h"

#include <csignal>
#include <future>

// The database and the settings of a start.
namespace lumora::app {
namespace {

using support::contentOf;
using support::rowsOf;
using support::writeContent;
using testing::ElementsAre;
using testing::StartsWith;

constexpr const char* kReadingFailed = "An error occurred when reading migration settings: ";

TEST_F(StartUp, ReplacesTheDatabaseExactlyWhenItIsMissingOrOfAnotherVersion)
{
    const struct {
        const char* why;
        const char* recorded;
        bool installed;
        bool replaced;
    } cases[] = {
        {"first start", nullptr, false, true},   {"same version", "2.0", true, false},
        {"deleted by hand", "2.0", false, true}, {"update", "1.0", true, true},
        {"downgrade", "3.0", true, true},        {"never recorded", nullptr, true, true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        std::filesystem::remove(database);
        if (c.installed) {
            installOld("(3)", "");
        }
        world.settings.removeValue("installed_version");
        if (c.recorded != nullptr) {
            world.settings.setValue(std::string{c.recorded}, "installed_version");
        }

        ASSERT_TRUE(prepare());

        EXPECT_EQ(isFresh(), c.replaced);
        EXPECT_EQ(userRows(), c.installed ? "3 |" : "|");
        EXPECT_EQ(world.settings.stringForKey("installed_version"), "2.0");
        EXPECT_FALSE(std::filesystem::exists(rescue));
    }
}

TEST_F(StartUp, CarriesFavouritesAndHistoryOverInTheirOrder)
{
    installOld("(6), (NULL), (2), (6)", "(2, 123456789.75), (3, 5.9), (2, 7)");

    ASSERT_TRUE(prepare());

    EXPECT_EQ(userRows(), "6 2 6 | 2@123456789.0 3@5.0 2@7.0");
    EXPECT_TRUE(world.crashReporter.lines.empty());
}

TEST_F(StartUp, AVerbIsAFavouriteOnceAndTheOrderOfAnOldFileIsKept)
{
    world.bundle.resources["verbs.db"] = LUMORA_VERBS_DB;
    installOld("(9), (4), (7), (4)", "");
    support::executeOn(*open(), "CREATE INDEX favourite_verbid ON favourite (verbid)");

    ASSERT_TRUE(prepare());
    EXPECT_EQ(userRows(), "9 4 7 |");

    support::executeOn(*open(), "INSERT INTO favourite(verbid) VALUES(9)");
    support::executeOn(*open(), "INSERT INTO favourite(verbid) VALUES(2)");
    EXPECT_THAT(rowsOf(*open(), "SELECT verbid FROM favourite WHERE verbid is not null"),
                ElementsAre("9", "4", "7", "2"))
        << "no index hands them out by verb";
}

TEST_F(StartUp, ASecondStartWaitsForTheFirstAndLetsItsDatabaseBe)
{
    const auto file = world.folder / "settings.json";
    writeContent(file, R"({"installed_version": "1.0"})");
    installOld("(3)", "");
    platform::FileSettingsStore first{file};
    platform::FileSettingsStore second{file};
    const auto start = [&](platform::SettingsStore& settings) {
        return prepareDatabase(documents, world.bundle, settings, world.crashReporter).has_value();
    };
    std::future<bool> waiting;
    {
        const auto lock = platform::FolderLock::take(documents, std::chrono::seconds{0});
        ASSERT_TRUE(lock);
        EXPECT_FALSE(platform::FolderLock::take(documents, std::chrono::milliseconds{10}));
        waiting = std::async(std::launch::async, [&] { return start(first); });
        EXPECT_EQ(waiting.wait_for(std::chrono::milliseconds{100}), std::future_status::timeout);
        EXPECT_FALSE(isFresh());
    }
    EXPECT_TRUE(waiting.get());
    EXPECT_TRUE(isFresh());

    support::executeOn(*open(), "CREATE TABLE old(x)");
    EXPECT_TRUE(start(second));
    EXPECT_FALSE(isFresh()) << "replaced once more";
}

TEST_F(StartUp, StartsOnADamagedDatabaseAndKeepsTheLast)
{
    const std::string whole = contentOf(resource);
    const std::string cases[] = {
        "",
        "not a database at all, just text that goes on for a while",
        whole.substr(0, 100),
        whole.substr(0, whole.size() / 2),
    };
    const auto aside = documents / "verbs.db.damaged";
    for (const auto& content : cases) {
        SCOPED_TRACE(content.size());
        writeContent(database, content);
        writeContent(documents / "verbs.db.damaged-journal", "of an older one");
        world.settings.setValue(std::string{"1.0"}, "installed_version");
        world.crashReporter.lines.clear();

        ASSERT_TRUE(prepare());

        EXPECT_TRUE(isFresh());
        EXPECT_EQ(userRows(), "|");
        EXPECT_THAT(world.crashReporter.lines, ElementsAre(StartsWith(kReadingFailed)));
        EXPECT_EQ(contentOf(aside), content);
        EXPECT_FALSE(std::filesystem::exists(documents / "verbs.db.damaged-journal"));
    }
}

TEST_F(StartUp, EveryFavouriteAndViewOfTheFirstVersionStillNamesTheSameVerb)
{
    world.bundle.resources["verbs.db"] = LUMORA_VERBS_DB;
    std::filesystem::copy_file(LUMORA_OLD_DATABASE, database);
    const auto headwords = [&] {
        return std::pair{rowsOf(*open(), "SELECT french FROM favourite JOIN verb ON "
                                         "verb._id = verbid ORDER BY favourite._id"),
                         rowsOf(*open(), "SELECT french FROM history JOIN verb ON "
                                         "verb._id = verbid ORDER BY timestamp")};
    };
    const auto before = headwords();
    ASSERT_EQ(before.first.size(), 12U);
    ASSERT_EQ(before.second.size(), 8U);

    ASSERT_TRUE(prepare());

    EXPECT_TRUE(world.crashReporter.lines.empty());
    EXPECT_EQ(headwords(), before);
}

TEST_F(StartUp, KeepsWhatWasReadBeforeAReadingFailed)
{
    installOld("(3), (1)", "");
    support::executeOn(*open(), "DROP TABLE history");

    ASSERT_TRUE(prepare());

    EXPECT_EQ(userRows(), "3 1 |");
    EXPECT_THAT(world.crashReporter.lines,
                ElementsAre(std::string{kReadingFailed} + "no such table: history (1)"));
}

TEST_F(StartUp, ReadsDatabasesPutAsideOnceTheyCanBeReadAgain)
{
    installOld("(3)", "(2, 9)");
    std::filesystem::rename(database, documents / "verbs.db.damaged");
    installOld("(5)", "(2, 8), (4, 1)");
    std::filesystem::rename(database, documents / "verbs.db.damaged.1");

    ASSERT_TRUE(prepare());

    EXPECT_EQ(userRows(), "5 3 | 2@8.0 4@1.0 2@9.0");
    EXPECT_FALSE(std::filesystem::exists(documents / "verbs.db.damaged"));
    EXPECT_FALSE(std::filesystem::exists(documents / "verbs.db.damaged.1"));
}

TEST_F(StartUp, WhatWaitsBesideItNeverBlocksAGoodDatabase)
{
    installOld("(3)", "", "2.0");
    std::filesystem::create_directory(rescue);

    EXPECT_TRUE(prepare());

    EXPECT_EQ(userRows(), "3 |");
    EXPECT_THAT(world.crashReporter.lines, ElementsAre(StartsWith(kReadingFailed)));
}

TEST_F(StartUp, ADatabaseThatAnotherProgramHoldsIsLeftAlone)
{
    installOld("(3)", "");
    const auto other = open();
    support::executeOn(*other, "BEGIN EXCLUSIVE");

    EXPECT_FALSE(prepare());

    EXPECT_EQ(world.settings.stringForKey("installed_version"), "1.0");
    EXPECT_FALSE(std::filesystem::exists(documents / "verbs.db.damaged"));
}

TEST_F(StartUp, AnInsertThatFailsStopsTheRestoreAndKeepsTheRescueFile)
{
    const auto refuse = platform::DatabaseQueue::open(platform::fileUrl(resource));
    support::executeOn(*refuse, "CREATE TRIGGER no BEFORE INSERT ON favourite WHEN new.verbid = 2 "
                                "BEGIN SELECT RAISE(FAIL, 'refused'); END");
    installOld("(3), (2), (1)", "(3, 8)");

    ASSERT_TRUE(prepare());

    EXPECT_EQ(userRows(), "3 |") << "what was inserted stays, the rest is skipped";
    EXPECT_THAT(world.crashReporter.lines,
                ElementsAre("An error occurred when inserting migration settings: refused (19)"));
    EXPECT_EQ(world.settings.stringForKey("installed_version"), "2.0");

    // Meanwhile the user goes on; then the cause is gone. What was removed
    // after it had come over stays removed.
    support::executeOn(*open(), "DELETE FROM favourite WHERE verbid = 3");
    support::executeOn(*open(), "INSERT INTO favourite(verbid) VALUES (5)");
    support::executeOn(*open(), "INSERT INTO history(verbid, timestamp) VALUES (4, 99)");
    support::executeOn(*open(), "DROP TRIGGER no");
    ASSERT_TRUE(prepare());

    EXPECT_EQ(userRows(), "5 2 1 | 4@99.0 3@8.0");
    EXPECT_FALSE(std::filesystem::exists(rescue));
}

TEST_F(StartUp, GoesOnBesideHalfACopyAndAJournalOfAnotherDatabase)
{
    // A transaction that is not at its end: its journal is ready to be played back.
    const auto other = platform::DatabaseQueue::open(platform::fileUrl(world.folder / "other.db"));
    for (const char* sql :
         {"PRAGMA cache_size = 1", "CREATE TABLE other(x)", "BEGIN",
          "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 500) "
          "INSERT INTO other SELECT randomblob(1000) FROM n"}) {
        support::executeOn(*other, sql);
    }
    const auto journal = contentOf(world.folder / "other.db-journal");
    for (const bool oldThere : {true, false}) {
        SCOPED_TRACE(oldThere);
        std::filesystem::remove(database);
        ASSERT_TRUE(RescueFile{rescue}.write({{3, 2}, {{1, 5}, {2, 6}}}));
        if (oldThere) {
            installOld("(3), (2)", "(1, 5), (2, 6)");
        }
        writeContent(documents / "verbs.db.new", "SQLite format 3");
        writeContent(documents / "verbs.db-journal", oldThere ? "stale" : journal);
        world.settings.setValue(std::string{"1.0"}, "installed_version");

        ASSERT_TRUE(prepare());

        EXPECT_EQ(userRows(), "3 2 | 1@5.0 2@6.0");
        EXPECT_FALSE(std::filesystem::exists(rescue));
        EXPECT_FALSE(std::filesystem::exists(documents / "verbs.db.new"));
        EXPECT_TRUE(world.crashReporter.lines.empty());
    }
}

TEST_F(StartUp, AVerbViewedSinceIsNotPutBackToItsOldTime)
{
    installOld("", "(1, 5.25)", "2.0");
    ASSERT_TRUE(RescueFile{rescue}.write({{}, {{1, 5}, {2, 6}}}));

    ASSERT_TRUE(prepare());

    EXPECT_EQ(userRows(), "| 1@5.25 2@6.0");
}

TEST_F(StartUp, AHistoryThatCannotBeAskedIsNotTakenForNeverViewed)
{
    installOld("", "", "2.0");
    support::executeOn(*open(), "DROP TABLE history");
    support::executeOn(*open(), "CREATE VIEW history AS SELECT 1 AS _id, verb._id AS verbid, "
                                "abs(-9223372036854775807 - verb._id) AS timestamp FROM verb");
    ASSERT_TRUE(RescueFile{rescue}.write({{}, {{1, 5}}}));

    ASSERT_TRUE(prepare());

    EXPECT_THAT(
        world.crashReporter.lines,
        ElementsAre("An error occurred when inserting migration settings: integer overflow (1)"));
    EXPECT_TRUE(std::filesystem::exists(rescue));
}

TEST_F(StartUp, ARescueFileThatMakesNoSenseIsPutAside)
{
    for (const char* content :
         {"", "{", "[]", R"({"favourites":[1]})", R"({"favourites":["x"],"history":[]})",
          R"({"favourites":[],"history":[[1]]})"}) {
        SCOPED_TRACE(content);
        writeContent(rescue, content);
        ASSERT_TRUE(prepare());
        EXPECT_EQ(contentOf(documents / "rescue.json.damaged"), content);
        EXPECT_FALSE(std::filesystem::exists(rescue));
    }
}

TEST_F(StartUp, WithoutItsDatabaseResourceOrVersionTheProgramStops)
{
    auto resources = std::exchange(world.bundle.resources, {});
    EXPECT_DEATH(static_cast<void>(prepare()), "verb database is missing");
    world.bundle.resources = std::move(resources);
    world.bundle.info.clear();
    EXPECT_DEATH(static_cast<void>(prepare()), "version is unknown");
}

TEST_F(StartUp, ADirectoryThatCannotBeWrittenLeavesTheVersionAndStartsWithoutAQueue)
{
    std::filesystem::remove(documents);
    writeContent(documents, "a file in the directory's place");
    auto delegate = makeDelegate();

    EXPECT_TRUE(delegate.didFinishLaunching({}));

    EXPECT_FALSE(delegate.queue);
    EXPECT_TRUE(world.console.str().starts_with("Unable to initialise database "));
    EXPECT_EQ(world.settings.objectForKey("installed_version"), std::nullopt);
    EXPECT_EQ(world.settings.values().size(), 5U) << "the rest of the launch went on";
}

TEST_F(StartUp, ARowDoesNotWaitForTheDiskAndOutlivesAKill)
{
    const auto writeAndDie = [this] {
        auto delegate = makeDelegate();
        delegate.didFinishLaunching({});
        const bool waits =
            rowsOf(*delegate.queue, "PRAGMA synchronous") != std::vector<std::string>{"1"};
        support::executeOn(*delegate.queue, "INSERT INTO favourite(verbid) VALUES (2)");
        static_cast<void>(std::raise(waits ? SIGTERM : SIGKILL));
    };
    EXPECT_EXIT(writeAndDie(), testing::KilledBySignal(SIGKILL), "");

    std::filesystem::create_directory(world.folder / "other");
    std::filesystem::copy(database, world.folder / "other");
    EXPECT_NE(rowsOf(*platform::DatabaseQueue::open((world.folder / "other/verbs.db").string()),
                     "SELECT verbid FROM favourite"),
              std::vector<std::string>{"2"})
        << "the row is beside the database still";
    ASSERT_TRUE(prepare());
    EXPECT_EQ(userRows(), "2 |");
}

TEST_F(StartUp, ADatabaseRemovedMeanwhileIsBackAtTheNextStart)
{
    auto delegate = makeDelegate();
    delegate.didFinishLaunching({});
    delegate.queue->inDatabase([](platform::Database& used) { used.close(); });
    std::filesystem::remove(database);

    delegate.queue->inDatabase([](platform::Database& gone) {
        EXPECT_FALSE(gone.executeQuery("SELECT * FROM verb", {}));
    });

    EXPECT_FALSE(std::filesystem::exists(database)) << "an empty one in its place";
    ASSERT_TRUE(prepare());
    EXPECT_EQ(rowsOf(*open(), "SELECT count(*) FROM verb"), std::vector<std::string>{"6"});
}

TEST_F(StartUp, AFirstStartWritesFiveSettingsAndTheVersion)
{
    auto delegate = makeDelegate();
    EXPECT_TRUE(delegate.didFinishLaunching({}));
    const platform::SettingsStore::Values expected{
        {"IncludeEnglish", true},      {"SearchFrom", std::string{"S"}},
        {"SearchConjugations", false}, {"ShowTranslated", false},
        {"SortByLang", true},          {"installed_version", std::string{"2.0"}}};
    EXPECT_EQ(world.settings.values(), expected);
    EXPECT_TRUE(delegate.queue);

    world.settings.setValue(false, "IncludeEnglish");
    world.settings.setValue(std::string{"W"}, "SearchFrom");
    EXPECT_TRUE(makeDelegate().didFinishLaunching({}));
    EXPECT_FALSE(world.settings.boolForKey("IncludeEnglish"));
    EXPECT_EQ(world.settings.stringForKey("SearchFrom"), "W");
}

} // namespace
} // namespace lumora::app
