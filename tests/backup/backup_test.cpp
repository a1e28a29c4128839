// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "backup/backup.h"

#include "detail/verb_detail_table_view_controller.h"
#include "lists/history_table_view_controller.h"
#include "navigation/options_table_view_controller.h"
#include "platform/machine/clock.h"
#include "support/world.h"

#include <gtest/gtest.h>

namespace lumora::backup {
namespace {

using support::rowsOf;
using support::World;

/// Seconds since 1970; the history counts from 2001.
constexpr double kNow = 1'700'000'000;
constexpr double kHistoryNow = kNow - platform::kReferenceDate;

class Backup : public testing::Test {
protected:
    std::filesystem::path file() const { return world.folder / "mine.json"; }

    tl::expected<RestoredCounts, Failure> restore(const std::string& text)
    {
        support::writeContent(file(), text);
        return restoreBackup(*world.queue, file(), kNow);
    }

    std::vector<std::string> favourites() const
    {
        return rowsOf(*world.queue, "SELECT french FROM favourite, verb WHERE verbid = verb._id "
                                    "ORDER BY favourite._id");
    }
    std::vector<std::string> history() const
    {
        return rowsOf(*world.queue, "SELECT french || ' ' || timestamp FROM history, verb "
                                    "WHERE verbid = verb._id ORDER BY timestamp DESC");
    }

    World world;
};

using Texts = std::vector<std::string>;

TEST_F(Backup, TakesEverythingToAnotherMachineThatNumbersItsVerbsOtherwise)
{
    world.execute("INSERT INTO favourite(verbid) VALUES (3), (6), (3), (NULL), (4711)");
    world.execute("INSERT INTO history(verbid, timestamp) VALUES"
                  "(2, 700000000.125), (6, 700000001), (2, 5)");
    const auto saved = saveBackup(*world.queue, file(), kNow);
    ASSERT_TRUE(saved) << saved.error().detail;
    EXPECT_EQ(saved->favourites, 2);
    EXPECT_EQ(saved->history, 2);
    EXPECT_NE(support::contentOf(file()).find("\"2023-11-14T22:13:20Z\""), std::string::npos);
    world.execute("DELETE FROM favourite");
    world.execute("DELETE FROM history");
    world.execute("UPDATE verb SET _id = 40 - _id");

    for (const int added : {2, 0}) {
        const auto restored = restoreBackup(*world.queue, file(), kNow);
        ASSERT_TRUE(restored) << restored.error().detail;
        EXPECT_EQ(restored->favourites.size(), static_cast<std::size_t>(added));
        EXPECT_EQ(restored->history, added) << "a second time changes nothing";
        EXPECT_EQ(restored->unknown, 0);
        EXPECT_EQ(favourites(), (Texts{"aller", "évanouir (s')"}));
        EXPECT_EQ(history(), (Texts{"évanouir (s') 700000001.0", "être 700000000.125"}));
    }
}

TEST_F(Backup, AddsToWhatIsThere)
{
    world.execute("INSERT INTO verb(_id, french) VALUES (9, 'ressortir'), (10, 'ressortir')");
    world.execute("INSERT INTO favourite(verbid) VALUES (1)");
    world.execute("INSERT INTO history(verbid, timestamp) VALUES (1, 100), (2, 200), (3, 300)");

    const auto restored = restore(R"({"lumora": 1, "later": [[[[1]]]], "favourites": [
        {"id": 1, "french": "avoir"}, {"id": 10, "french": "ressortir"},
        {"id": 5, "french": "ressortir"}, {"id": 10, "french": "aller"},
        {"french": "être", "more": {"a": 1}},
        {"id": 2, "french": "googler"}, {"id": 1}, 7], "history": [
        {"id": 1, "french": "avoir", "viewed": 978307350},
        {"id": 1, "french": "avoir", "viewed": 978307310},
        {"id": 2, "french": "être", "viewed": 978307250},
        {"id": 3, "french": "aller", "viewed": "yesterday"},
        {"id": 4, "french": "pouvoir", "viewed": 1e300},
        {"id": 5, "french": "falloir", "viewed": 1e300}]})");

    ASSERT_TRUE(restored);
    EXPECT_EQ(favourites(), (Texts{"avoir", "ressortir", "ressortir", "aller", "être"}));
    EXPECT_EQ(rowsOf(*world.queue, "SELECT verbid FROM favourite"),
              (Texts{"1", "10", "9", "3", "2"}));
    EXPECT_EQ(rowsOf(*world.queue, "SELECT verbid FROM history ORDER BY timestamp"),
              (Texts{"1", "2", "3", "5", "4"}));
    EXPECT_EQ(
        rowsOf(*world.queue, "SELECT timestamp FROM history WHERE verbid < 4 ORDER BY verbid"),
        (Texts{"150.0", "200.0", "300.0"}))
        << "a view counts when it is the newest of its verb";
    EXPECT_EQ(world.count("history WHERE timestamp > " + std::to_string(kHistoryNow)), 0)
        << "nothing stays on top because a clock was ahead";
    EXPECT_EQ(restored->favourites.size(), 4U);
    EXPECT_EQ(restored->history, 3);
    EXPECT_EQ(restored->unknown, 4) << "googler and three entries that are none";
    const auto later = restoreBackup(*world.queue, file(), kNow + 3600);
    ASSERT_TRUE(later);
    EXPECT_EQ(later->history, 0) << "and does not come on top again";
}

TEST_F(Backup, FollowsALinkToTheFileThatIsKept)
{
    const auto kept = world.folder / "synchronized.json";
    support::writeContent(kept, "old");
    std::filesystem::create_symlink(kept, file());

    ASSERT_TRUE(saveBackup(*world.queue, file(), kNow));

    EXPECT_TRUE(std::filesystem::is_symlink(file()));
    EXPECT_TRUE(restoreBackup(*world.queue, kept, kNow));
}

TEST_F(Backup, KeepsTheNewestOfAHistoryThatGrowsOverItsBound)
{
    world.execute("WITH RECURSIVE n(i) AS (SELECT 100 UNION ALL SELECT i + 1 FROM n WHERE i < 159)"
                  "INSERT INTO verb(_id, french) SELECT i, 'verb' || i FROM n");
    world.execute("INSERT INTO history(verbid, timestamp) SELECT _id, _id FROM verb WHERE _id < 4");
    std::string entries;
    for (int id = 100; id < 160; ++id) {
        entries += (entries.empty() ? "" : ",") + std::string{R"({"french": "verb)"} +
                   std::to_string(id) + R"(", "viewed": 1600000000})";
    }

    const auto restored = restore(R"({"lumora": 1, "history": [)" + entries + "]}");

    ASSERT_TRUE(restored);
    EXPECT_EQ(restored->history, 51) << "all were viewed at once, and do not go at once";
    EXPECT_EQ(
        rowsOf(*world.queue, "SELECT count(DISTINCT CAST(timestamp AS INTEGER)) FROM history"),
        Texts{"51"})
        << "an update keeps whole seconds only";
}

TEST_F(Backup, RefusesWhatItDidNotWriteAndChangesNothing)
{
    const std::string whole = R"({"lumora": 1, "favourites": [{"id": 3, "french": "aller"}]})";
    const std::pair<std::string, Problem> cases[] = {
        {"", Problem::NotABackup},
        {"null", Problem::NotABackup},
        {"[1]", Problem::NotABackup},
        {"{}", Problem::NotABackup},
        {R"({"lumora": "1"})", Problem::NotABackup},
        {R"({"lumora": 0})", Problem::NotABackup},
        {R"({"lumora": 1, "favourites": {}})", Problem::NotABackup},
        {R"({"lumora": 1, "history": 3})", Problem::NotABackup},
        {"{\"lumora\": 1, \"x\": \"\xff\"}", Problem::NotABackup},
        {whole + "x", Problem::NotABackup},
        {R"({"lumora": 2, "favourites": 7})", Problem::FromNewerVersion},
        {R"({"lumora": 18446744073709551615})", Problem::FromNewerVersion},
        {std::string(4'000'000, '['), Problem::NotABackup},
        {std::string(5'000'000, ' ') + whole, Problem::FileNotRead},
    };
    for (const auto& [text, problem] : cases) {
        SCOPED_TRACE(text.substr(0, 60));
        const auto restored = restore(text);
        ASSERT_FALSE(restored);
        EXPECT_EQ(restored.error().problem, problem);
    }
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_FALSE(restore(whole.substr(0, length))) << length;
    }
    EXPECT_EQ(restoreBackup(*world.queue, world.folder / "none", kNow).error().problem,
              Problem::FileNotRead);
    EXPECT_EQ(favourites(), Texts{});
    EXPECT_TRUE(restore(whole));
}

TEST_F(Backup, AFailureMidwayLeavesEverythingAsItWas)
{
    const std::string text = R"({"lumora": 1, "favourites": [{"french": "aller"}],
        "history": [{"french": "aller", "viewed": 1600000000}]})";
    world.execute("INSERT INTO history(verbid, timestamp) VALUES (3, 7)");
    world.execute("CREATE TRIGGER full BEFORE INSERT ON history "
                  "BEGIN SELECT RAISE(ABORT, 'the disk is full'); END");
    const auto restored = restore(text);
    ASSERT_FALSE(restored);
    EXPECT_EQ(restored.error().problem, Problem::Database);
    EXPECT_EQ(restored.error().detail, "the disk is full");
    EXPECT_EQ(favourites(), Texts{});
    EXPECT_EQ(history(), Texts{"aller 7.0"});

    world.execute("DROP TRIGGER full");
    world.execute("PRAGMA busy_timeout = 1");
    const auto other = platform::DatabaseQueue::open(platform::fileUrl(world.folder / "small.db"));
    support::executeOn(*other, "BEGIN EXCLUSIVE");
    EXPECT_EQ(restore(text).error().detail, "database is locked");
    support::executeOn(*other, "COMMIT");
    EXPECT_TRUE(restore(text)) << "no transaction is left open";
}

TEST_F(Backup, WritesOnlyFiles)
{
    for (const auto& place : {std::filesystem::path{"/dev/null"}, world.folder.path(),
                              world.folder / "no folder" / "mine.json"}) {
        const auto saved = saveBackup(*world.queue, place, kNow);
        ASSERT_FALSE(saved);
        EXPECT_EQ(saved.error().problem, Problem::FileNotWritten);
    }
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
}

/// The menu of the options screen, and the person who uses it.
class BackupFromTheOptions : public Backup {
protected:
    BackupFromTheOptions()
    {
        world.bundle.texts["backup.save.counts"] = "%d and %d saved";
        world.bundle.texts["backup.restore.counts"] = "%d and %d new";
        world.bundle.texts["backup.restore.unknown"] = "%d unknown";
        world.clock.now = kNow;
    }

    void press(const std::string& choice)
    {
        options->navigationItem().leftBarButton->action();
        for (const auto& action : world.presenter.sheets.back().sheet.actions) {
            if (action.title == choice) {
                action.handler();
            }
        }
    }
    const platform::Alert& told() const { return world.presenter.alerts.back().alert; }

    std::shared_ptr<navigation::OptionsTableViewController> options =
        world.load<navigation::OptionsTableViewController>();
};

TEST_F(BackupFromTheOptions, SavesRestoresAndTellsTheOtherScreens)
{
    world.execute("INSERT INTO favourite(verbid) VALUES (3)");
    press("backup.save");
    ASSERT_TRUE(world.fileChooser.question);
    EXPECT_EQ(world.fileChooser.question->purpose, platform::FileQuestion::Purpose::Save);
    world.fileChooser.chosen(file());
    EXPECT_EQ(told().message, "1 and 0 saved");

    world.execute("DELETE FROM favourite");
    const auto history = world.load<lists::HistoryTableViewController>();
    const auto detail = world.load<detail::VerbDetailTableViewController>();
    detail->selectedVerb = world.verb(3);
    press("backup.restore");
    EXPECT_EQ(world.fileChooser.question->purpose, platform::FileQuestion::Purpose::Open);
    world.fileChooser.chosen(file());
    EXPECT_EQ(told().message, "1 and 0 new");
    EXPECT_EQ(world.posted["VerbFavouriteToggled"], 1);
    EXPECT_TRUE(detail->selectedVerb->isFavourite);
    EXPECT_EQ(detail->favouriteBarButton.image, "ic_favorite_toolbar");

    support::writeContent(file(), R"({"lumora": 1, "favourites": [7],
        "history": [{"french": "avoir", "viewed": 1600000000}]})");
    press("backup.restore");
    world.fileChooser.chosen(file());
    EXPECT_EQ(told().message, "0 and 1 new\n1 unknown");
    EXPECT_EQ(support::infinitives(history->verbs), Texts{"avoir"});
}

TEST_F(BackupFromTheOptions, SaysWhatWentWrong)
{
    press("backup.restore");
    support::writeContent(file(), R"({"lumora": 3})");
    world.fileChooser.chosen(file());
    EXPECT_EQ(told().title, "backup.restore.failed");
    EXPECT_EQ(told().message, "backup.problem.newer");

    options->queue = nullptr;
    press("backup.save");
    world.fileChooser.chosen(world.folder / "new.json");
    EXPECT_EQ(told().title, "backup.save.failed");
    EXPECT_EQ(told().message, "backup.problem.database");

    const auto told = world.presenter.alerts.size();
    options.reset();
    world.fileChooser.chosen(file());
    EXPECT_EQ(world.presenter.alerts.size(), told) << "the answer comes when the screen has gone";
}

} // namespace
} // namespace lumora::backup
