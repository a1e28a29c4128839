// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/app_delegate.h"
#include "app/database_preparation.h"
#include "app/old_settings_file.h"
#include "app/rescue_file.h"
#include "detail/verb_detail_table_view_controller.h"
#include "navigation/home_view_controller.h"
#include "platform/files/folder_lock.h"
#include "platform/screens/navigation_controller.h"
#include "platform/storage/file_settings_store.h"

#include "support/world.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <future>

namespace lumora {
namespace {

using app::AppDelegate;
using support::contentOf;
using support::rowsOf;
using support::World;
using support::writeContent;
using testing::ElementsAre;
using testing::StartsWith;

constexpr const char* kReadingFailed = "An error occurred when reading migration settings: ";

/// A machine on which the program is about to start, again and again.
class StartUp : public testing::Test {
protected:
    void SetUp() override
    {
        std::filesystem::create_directory(documents);
        support::writeSmallDatabase(resource);
        world.bundle.resources["verbs.db"] = resource;
        world.bundle.info["CFBundleShortVersionString"] = "2.0";
    }

    platform::Result<void> prepare()
    {
        return app::prepareDatabase(documents, world.bundle, world.settings, world.crashReporter);
    }

    /// The working database as another version left it.
    void installOld(const std::string& favourites, const std::string& history,
                    const std::string& version = "1.0")
    {
        support::writeSmallDatabase(database);
        const auto queue = open();
        if (!favourites.empty()) {
            support::executeOn(*queue, "INSERT INTO favourite(verbid) VALUES " + favourites);
        }
        if (!history.empty()) {
            support::executeOn(*queue, "INSERT INTO history(verbid, timestamp) VALUES " + history);
        }
        support::executeOn(*queue, "CREATE TABLE old(x)");
        world.settings.setValue(version, "installed_version");
    }

    std::unique_ptr<platform::DatabaseQueue> open() const
    {
        return platform::DatabaseQueue::open(platform::fileUrl(database));
    }

    /// "favourites | history" of the working database, in row order.
    std::string userRows() const
    {
        std::string text;
        for (const auto& verb : rowsOf(*open(), "SELECT verbid FROM favourite")) {
            text += verb + " ";
        }
        text += "|";
        for (const auto& view : rowsOf(*open(), "SELECT verbid || '@' || timestamp FROM history")) {
            text += " " + view;
        }
        return text;
    }

    bool isFresh() const
    {
        return rowsOf(*open(), "SELECT name FROM sqlite_master WHERE name = 'old'").empty();
    }

    AppDelegate makeDelegate()
    {
        AppDelegate delegate{world.services(), {documents, documents.string()}, {0, 0, 1, 1}};
        delegate.window.rootViewController = world.storyboard.instantiateInitialViewController();
        return delegate;
    }
    static platform::SplitViewController& splitOf(const AppDelegate& delegate)
    {
        return dynamic_cast<platform::SplitViewController&>(*delegate.window.rootViewController);
    }
    static platform::NavigationController& stackOf(const AppDelegate& delegate)
    {
        return dynamic_cast<platform::NavigationController&>(
            *splitOf(delegate).viewControllers().front());
    }
    static navigation::HomeViewController& homeOf(const AppDelegate& delegate)
    {
        return dynamic_cast<navigation::HomeViewController&>(
            *stackOf(delegate).topViewController());
    }

    World world;
    std::filesystem::path documents = world.folder / "documents";
    std::filesystem::path database = documents / "verbs.db";
    std::filesystem::path rescue = documents / "rescue.json";
    std::filesystem::path resource = world.folder / "resource.db";
};

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
        return app::prepareDatabase(documents, world.bundle, settings, world.crashReporter)
            .has_value();
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
        ASSERT_TRUE(app::RescueFile{rescue}.write({{3, 2}, {{1, 5}, {2, 6}}}));
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
    ASSERT_TRUE(app::RescueFile{rescue}.write({{}, {{1, 5}, {2, 6}}}));

    ASSERT_TRUE(prepare());

    EXPECT_EQ(userRows(), "| 1@5.25 2@6.0");
}

TEST_F(StartUp, AHistoryThatCannotBeAskedIsNotTakenForNeverViewed)
{
    installOld("", "", "2.0");
    support::executeOn(*open(), "DROP TABLE history");
    support::executeOn(*open(), "CREATE VIEW history AS SELECT 1 AS _id, verb._id AS verbid, "
                                "abs(-9223372036854775807 - verb._id) AS timestamp FROM verb");
    ASSERT_TRUE(app::RescueFile{rescue}.write({{}, {{1, 5}}}));

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

std::string plist(const std::string& entries)
{
    return R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0"><dict>)" + entries +
           "</dict></plist>";
}

TEST_F(StartUp, CarriesOldSettingsOverOnceAndByKind)
{
    const struct {
        const char* why;
        std::string content;
        platform::SettingsStore::Values carried;
    } cases[] = {
        {"all four",
         plist("<key>IncludeEnglish</key><false/><key>SearchFrom</key><string>W</string>"
               "<key>SearchConjugations</key><integer>1</integer>"
               "<key>SortByLang</key><real>0.5</real><key>Other</key><true/>"),
         {{"IncludeEnglish", false},
          {"SearchFrom", std::string{"W"}},
          {"SearchConjugations", true},
          {"SortByLang", true}}},
        {"wrong kinds are skipped",
         plist("<key>SearchFrom</key><integer>1</integer><key>IncludeEnglish</key>"
               "<string>YES</string><key>SortByLang</key><integer>0</integer>"),
         {{"SortByLang", false}}},
        {"an array is no dictionary",
         R"(<?xml version="1.0"?><plist version="1.0"><array/></plist>)",
         {}},
        {"no property list", "IncludeEnglish=1", {}},
        {"empty", "", {}},
    };
    const auto file = documents / "lumora.plist";
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        World fresh;
        writeContent(file, c.content);

        app::carryOverOldSettings(documents.string(), fresh.settings, fresh.crashReporter);

        EXPECT_EQ(fresh.settings.values(), c.carried);
        EXPECT_FALSE(std::filesystem::exists(file));
        EXPECT_TRUE(fresh.crashReporter.lines.empty());
    }
}

TEST_F(StartUp, ReadsTheDocumentsPathAsUrlText)
{
    const auto blank = world.folder / "with blank";
    const auto percent = world.folder / "a%62c";
    const auto decoded = world.folder / "abc";
    for (const auto& folder : {blank, percent, decoded}) {
        std::filesystem::create_directory(folder);
        writeContent(folder / "lumora.plist", plist("<key>SortByLang</key><false/>"));
    }

    app::carryOverOldSettings(blank.string(), world.settings, world.crashReporter);
    app::carryOverOldSettings(std::nullopt, world.settings, world.crashReporter);
    EXPECT_TRUE(world.settings.values().empty()) << "a blank makes no valid URL";
    EXPECT_TRUE(std::filesystem::exists(blank / "lumora.plist"));

    app::carryOverOldSettings(percent.string(), world.settings, world.crashReporter);
    EXPECT_FALSE(std::filesystem::exists(decoded / "lumora.plist"));
}

TEST_F(StartUp, AnOldSettingsFileThatCannotBeDeletedIsReported)
{
    std::filesystem::create_directories(documents / "lumora.plist" / "x");

    app::carryOverOldSettings(documents.string(), world.settings, world.crashReporter);

    EXPECT_THAT(world.crashReporter.lines,
                ElementsAre("Unable to delete file. Will try again later. %@"));
}

TEST_F(StartUp, AShortcutOpensItsTab)
{
    const struct {
        const char* type;
        navigation::Tab tab;
        int posts;
    } cases[] = {
        {"com.brindle.shortcut.favourite", navigation::Tab::Favourites, 1},
        {"com.brindle.shortcut.history", navigation::Tab::History, 1},
        {"com.brindle.shortcut.list", navigation::Tab::List, 1},
        {"com.brindle.shortcut.search", navigation::Tab::List, 0},
        {"com.brindle.shortcut.other", navigation::Tab::List, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.type);
        world.posted.clear();
        auto delegate = makeDelegate();

        EXPECT_FALSE(delegate.didFinishLaunching({app::ShortcutItem{c.type}}));

        EXPECT_EQ(world.posted["TabOpenEvent"], c.posts);
        EXPECT_EQ(homeOf(delegate).tabBar.selectedItem, c.tab);
        bool success = false;
        delegate.performActionForShortcutItem({c.type}, [&](bool done) { success = done; });
        EXPECT_TRUE(success);
    }
}

TEST_F(StartUp, TheSearchShortcutComesBackToTheListAndFocusesTheField)
{
    world.device.tablet = true;
    auto delegate = makeDelegate();
    delegate.didFinishLaunching({});
    auto& split = splitOf(delegate);
    auto& stack = stackOf(delegate);
    auto& home = homeOf(delegate);
    home.loadViewIfNeeded();
    const app::ShortcutItem search{"com.brindle.shortcut.search"};

    delegate.performActionForShortcutItem(search, [](bool) {});
    world.clock.advance(std::chrono::milliseconds{200});
    EXPECT_FALSE(home.searchBar.isFirstResponder) << "two panes: nothing happens";

    split.setCollapsed(true);
    split.showDetailViewController(world.storyboard.instantiateDestination("showDetail"));
    ASSERT_EQ(stack.viewControllers().size(), 2U);
    delegate.performActionForShortcutItem(search, [](bool) {});
    EXPECT_EQ(stack.viewControllers().size(), 1U);
    EXPECT_FALSE(home.searchBar.isFirstResponder);
    world.clock.advance(std::chrono::milliseconds{100});
    EXPECT_TRUE(home.searchBar.isFirstResponder);
}

TEST_F(StartUp, ALinkOpensItsVerbOverTheListOrSaysThatThereIsNone)
{
    auto delegate = makeDelegate();
    delegate.didFinishLaunching({});
    splitOf(delegate).showDetailViewController(
        world.storyboard.instantiateDestination("showDetail"));

    delegate.openLink("lumora://verb/%C3%A9vanouir");

    EXPECT_EQ(stackOf(delegate).viewControllers().size(), 1U) << "what was open has gone";
    ASSERT_NE(world.shownDetail(), nullptr);
    EXPECT_EQ(world.shownDetail()->selectedVerb->french, "évanouir (s')");
    EXPECT_EQ(world.shownDetail()->queue, delegate.queue.get());

    delegate.openLink("lumora://verb/alller");
    delegate.openLink("lumora://aller");
    ASSERT_EQ(world.presenter.alerts.size(), 2U);
    EXPECT_EQ(world.presenter.alerts[0].alert.message, "link.unknown");
    EXPECT_EQ(world.presenter.alerts[1].alert.message, "link.malformed");
    EXPECT_EQ(world.presenter.segues.size(), 1U);
}

TEST_F(StartUp, ALinkToVerbsOfOneNameOpensTheCommonerAndOffersTheOther)
{
    auto delegate = makeDelegate();
    delegate.didFinishLaunching({});
    for (const char* sql : {
             "INSERT INTO verb(_id, french, english) VALUES (7, 'monter', 'take up'),"
             " (8, 'monter', 'go up')",
             "INSERT INTO verb_facts(verbid, auxiliary, use_class) VALUES (7, 'avoir', 2),"
             " (8, 'être', 1)",
         }) {
        support::executeOn(*delegate.queue, sql);
    }

    delegate.openLink("lumora://verb/monter");

    EXPECT_EQ(world.shownDetail()->selectedVerb->id, 8);
    ASSERT_EQ(world.presenter.alerts.size(), 1U);
    const auto& alert = world.presenter.alerts[0].alert;
    EXPECT_EQ(alert.title, "monter");
    EXPECT_EQ(alert.message, "link.homographs");
    ASSERT_EQ(alert.actions.size(), 2U);
    EXPECT_EQ(alert.actions[0].title, "take up");
    alert.actions[0].handler();
    EXPECT_EQ(world.shownDetail()->selectedVerb->id, 7);
    EXPECT_EQ(world.presenter.alerts.size(), 1U);

    world.settings.setValue(std::string{"fr"}, "translation_language");
    delegate.openLink("lumora://verb/monter");
    EXPECT_EQ(world.presenter.alerts.at(1).alert.actions[0].title, "monter (avoir)");
}

TEST_F(StartUp, ANarrowWindowDropsOnlyAnEmptyDetailScreen)
{
    auto delegate = makeDelegate();
    delegate.didFinishLaunching({});
    const auto stackWith = [&](data::VerbPtr verb) {
        auto stack = std::dynamic_pointer_cast<platform::NavigationController>(
            world.storyboard.instantiateDestination("showDetail"));
        dynamic_cast<detail::VerbDetailTableViewController&>(*stack->topViewController())
            .selectedVerb = std::move(verb);
        return stack;
    };
    platform::NavigationController primary{stackWith(nullptr)};
    const auto collapses = [&](platform::ViewController& secondary) {
        return delegate.collapseSecondaryViewControllerOntoPrimary(secondary, primary);
    };
    platform::NavigationController home{
        world.storyboard.instantiateViewController("VerbListTableViewController")};
    platform::NavigationController none{stackWith(nullptr)};
    none.setViewControllers({});

    EXPECT_TRUE(collapses(*stackWith(nullptr)));
    EXPECT_FALSE(collapses(*stackWith(world.verb(3))));
    EXPECT_FALSE(collapses(home));
    EXPECT_FALSE(collapses(none));
    EXPECT_FALSE(collapses(*home.topViewController()));
}

TEST_F(StartUp, AnotherRootThanASplitViewStopsTheProgram)
{
    auto delegate = makeDelegate();
    delegate.window.rootViewController = world.storyboard.instantiateDestination("showDetail");
    EXPECT_DEATH(delegate.didFinishLaunching({}), "not a split view");
}

} // namespace
} // namespace lumora
