// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/database_preparation.h"
#include "fault/fault_harness.h"
#include "lists/favourites_table_view_controller.h"
#include "lists/history_table_view_controller.h"
#include "platform/storage/file_settings_store.h"
#include "support/fake_bundle.h"
#include "support/recording_crash_reporter.h"
#include "support/temporary_folder.h"
#include "support/world.h"
#include "verbdb/content.h"
#include "verbdb/database_writer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <ostream>
#include <set>

#include <unistd.h>

namespace lumora {
namespace {

namespace fs = std::filesystem;
using fault::Fault;
using fault::FaultHarness;

/// How the calls of a run go wrong, one call a run.
struct Kind {
    friend void PrintTo(const Kind& kind, std::ostream* output) { *output << kind.name; }

    const char* name;
    std::optional<int> error;
    bool lasts = false;
};

constexpr Kind kKinds[] = {{"killed", {}},
                           {"no_space", ENOSPC},
                           {"input_output_error", EIO},
                           {"access_denied", EACCES},
                           {"disk_stays_full", ENOSPC, true}};

std::set<std::string> namesIn(const fs::path& folder)
{
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator{folder}) {
        names.insert(entry.path().filename().string());
    }
    return names;
}

class NothingLost : public testing::TestWithParam<Kind> {
protected:
    /// Sets a run up, lets it go wrong at every call in turn and judges what
    /// is left of it. Answers how many points there were.
    template <typename Prepare, typename Work, typename Judge>
    static std::size_t tryEveryPoint(const FaultHarness& harness, Prepare prepare, Work work,
                                     Judge judge)
    {
        const Kind& kind = GetParam();
        std::size_t point = 0;
        while (!HasFatalFailure()) {
            prepare();
            const auto outcome = harness.run(work, Fault{point + 1, kind.error, kind.lasts});
            if (outcome.met.empty()) {
                EXPECT_EQ(outcome.calls, point) << "the run without a fault is not the same";
                return point;
            }
            ++point;
            SCOPED_TRACE(std::string{kind.name} + " at call " + std::to_string(point) + ": " +
                         outcome.met);
            judge(outcome);
        }
        return point;
    }

    support::TemporaryFolder folder;
    fs::path documents = folder / "documents";
    fs::path config = folder / "config";
    fs::path settingsFile = config / "settings.json";
};

using UserRows = std::vector<std::pair<std::int64_t, std::int64_t>>;

/// A start of another version, on a database of some twenty verbs.
class Replacement : public NothingLost {
protected:
    void SetUp() override
    {
        const auto tables = folder / "tables";
        fs::create_directory(tables);
        fs::copy(LUMORA_FROZEN_CONTENT_DIR, tables);
        fs::copy(LUMORA_CONTENT_DIR "/models.tsv", tables / "models.tsv");
        const auto content = verbdb::readContent(tables);
        verbdb::writeDatabase(content, resource);
        fs::copy_file(resource, old);
        bundle.resources["verbs.db"] = resource;
        bundle.info["CFBundleShortVersionString"] = "2.0";

        const auto queue = platform::DatabaseQueue::open(platform::fileUrl(old));
        for (std::size_t i = 0; i < content.verbs.size(); ++i) {
            const auto id = content.verbs[i].id;
            const auto text = std::to_string(id);
            if (i % 4 == 0) {
                favourites.emplace_back(id, 0);
                support::executeOn(*queue, "INSERT INTO favourite(verbid) VALUES(" + text + ")");
            }
            if (i % 5 == 0) {
                const auto time = static_cast<std::int64_t>(700000000 + i);
                history.emplace_back(id, time);
                support::executeOn(*queue, "INSERT INTO history(verbid, timestamp) VALUES(" + text +
                                               ", " + std::to_string(time) + ".75)");
            }
        }
    }

    void prepare() const
    {
        for (const auto& used : {documents, config}) {
            fs::remove_all(used);
            fs::create_directory(used);
        }
        fs::copy_file(old, documents / "verbs.db");
        support::writeContent(settingsFile, R"({"installed_version": "1.0", "SearchFrom": "W"})");
    }

    int start()
    {
        platform::FileSettingsStore settings{settingsFile};
        support::RecordingCrashReporter crashReporter;
        return app::prepareDatabase(documents, bundle, settings, crashReporter) ? 0 : 1;
    }

    static UserRows rows(platform::DatabaseQueue& queue, const char* statement)
    {
        UserRows rows;
        queue.inDatabase([&](platform::Database& database) {
            auto result = database.executeQuery(statement, {});
            while (result && result->next()) {
                rows.emplace_back(result->longForColumn(0), result->longForColumn(1));
            }
            EXPECT_TRUE(result && !result->failed());
        });
        std::sort(rows.begin(), rows.end());
        return rows;
    }

    template <typename List>
    UserRows shownBy(platform::DatabaseQueue& queue)
    {
        List list{world.services()};
        list.queue = &queue;
        list.loadViewIfNeeded();
        UserRows shown;
        for (const auto& verb : list.verbs) {
            shown.emplace_back(verb->id, 0);
        }
        std::sort(shown.begin(), shown.end());
        return shown;
    }

    void expectAllThere()
    {
        ASSERT_EQ(start(), 0);
        const auto queue = platform::DatabaseQueue::open(platform::fileUrl(documents / "verbs.db"));
        EXPECT_EQ(rows(*queue, "SELECT verbid, 0 FROM favourite"), favourites);
        EXPECT_EQ(rows(*queue, "SELECT verbid, timestamp FROM history"), history);
        EXPECT_EQ(shownBy<lists::FavouritesTableViewController>(*queue), favourites);
        EXPECT_EQ(shownBy<lists::HistoryTableViewController>(*queue).size(), history.size());
        EXPECT_EQ(namesIn(documents), std::set<std::string>{"verbs.db"});
        EXPECT_EQ(namesIn(config), std::set<std::string>{"settings.json"});
        const platform::FileSettingsStore settings{settingsFile};
        EXPECT_EQ(settings.stringForKey("installed_version"), "2.0");
        EXPECT_EQ(settings.stringForKey("SearchFrom"), "W");
    }

    support::World world;
    support::FakeBundle bundle;
    fs::path old = folder / "old.db";
    fs::path resource = folder / "resource.db";
    UserRows favourites;
    UserRows history;
};

TEST_P(Replacement, ShowsEveryFavouriteAndEveryViewOnceAfterAFaultAtAnyCall)
{
    const FaultHarness harness{{documents, config}};
    const auto points = tryEveryPoint(
        harness, [&] { prepare(); }, [&] { return start(); },
        [&](const fault::Outcome&) { expectAllThere(); });
    EXPECT_GT(points, 300U);
}

class Settings : public NothingLost {};

TEST_P(Settings, AreTheOldOnesOrTheNewOnesAfterAFaultAtAnyCall)
{
    platform::SettingsStore::Values before;
    for (int i = 0; i < 40; ++i) {
        before.insert_or_assign("key" + std::to_string(i), std::string(200, 'v'));
    }
    auto after = before;
    after.insert_or_assign("SortByLang", false);
    const FaultHarness harness{{config}};
    std::size_t points = 0;
    for (const bool first : {true, false}) {
        const auto old = first ? platform::SettingsStore::Values{} : before;
        const auto prepare = [&] {
            fs::remove_all(config);
            if (!first) {
                platform::FileSettingsStore store{settingsFile};
                for (const auto& [key, value] : before) {
                    store.setValue(value, key);
                }
            }
        };
        const auto save = [&] {
            platform::FileSettingsStore store{settingsFile};
            for (const auto& [key, value] : after) {
                store.setValue(value, key);
            }
            // Once: at its end the store would try again.
            ::_exit(store.synchronize() ? 0 : 1);
            return 0;
        };
        points += tryEveryPoint(harness, prepare, save, [&](const fault::Outcome& outcome) {
            platform::FileSettingsStore store{settingsFile};
            EXPECT_TRUE(store.values() == after || (outcome.status != 0 && store.values() == old));
            store.setValue(std::int64_t{1}, "one more");
            EXPECT_TRUE(store.synchronize());
            EXPECT_EQ(namesIn(config), std::set<std::string>{"settings.json"});
        });
    }
    EXPECT_GT(points, 20U);
}

std::string kindName(const testing::TestParamInfo<Kind>& info)
{
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(Faults, Replacement, testing::ValuesIn(kKinds), kindName);
INSTANTIATE_TEST_SUITE_P(Faults, Settings, testing::ValuesIn(kKinds), kindName);

} // namespace
} // namespace lumora
