// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/database_preparation.h"
#include "platform/database_queue.h"
#include "platform/settings_store.h"
#include "support/fake_bundle.h"
#include "support/recording_crash_reporter.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace lumora {
namespace {

/// The headwords behind a statement that joins verbs to the user's rows.
std::vector<std::string> headwords(const std::filesystem::path& file, const char* statement)
{
    std::vector<std::string> texts;
    platform::DatabaseQueue::open(platform::fileUrl(file))
        ->inDatabase([&](platform::Database& database) {
            auto rows = database.executeQuery(statement, {});
            while (rows && rows->next()) {
                texts.push_back(rows->stringForColumn(0));
            }
        });
    return texts;
}

TEST(Upgrade, EveryFavouriteAndViewStillNamesTheSameVerb)
{
    const support::TemporaryFolder documents;
    const auto file = documents / "verbs.db";
    std::filesystem::copy_file(LUMORA_OLD_DATABASE, file);
    constexpr const char* kFavourites =
        "SELECT french FROM favourite JOIN verb ON verb._id = verbid ORDER BY favourite._id";
    constexpr const char* kViews =
        "SELECT french FROM history JOIN verb ON verb._id = verbid ORDER BY timestamp";
    const auto favourites = headwords(file, kFavourites);
    const auto views = headwords(file, kViews);
    ASSERT_EQ(favourites.size(), 12U);
    ASSERT_EQ(views.size(), 8U);
    support::FakeBundle bundle;
    bundle.resources["verbs.db"] = LUMORA_VERBS_DB;
    bundle.info["CFBundleShortVersionString"] = "1.0.0-present";
    platform::MemorySettingsStore settings;
    settings.setValue(std::string{"0.9.0-0ld"}, "installed_version");
    support::RecordingCrashReporter crashReporter;

    ASSERT_TRUE(app::prepareDatabase(documents.path(), bundle, settings, crashReporter));

    EXPECT_TRUE(crashReporter.lines.empty());
    EXPECT_EQ(headwords(file, kFavourites), favourites);
    EXPECT_EQ(headwords(file, kViews), views);
}

} // namespace
} // namespace lumora
