// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/records/local_analytics.h"

#include "support/fake_clock.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sstream>
#include <string>

namespace lumora::platform {

namespace {

using support::contentOf;
using support::TemporaryFolder;
using support::writeContent;

} // namespace

TEST(LocalAnalytics, WritesOneLineOfJsonAnEvent)
{
    const TemporaryFolder folder;
    support::FakeClock clock;
    clock.now = 1234.5;
    LocalAnalytics analytics(folder / "state", folder / "config", clock);

    analytics.logEvent("search", {{"text", "l'\"é\n\xff"}});
    analytics.logEvent("share", {});

    std::istringstream lines(contentOf(folder / "state/analytics.jsonl"));
    std::string line;
    ASSERT_TRUE(std::getline(lines, line));
    const auto event = nlohmann::json::parse(line, nullptr, false);
    EXPECT_EQ(event, (nlohmann::json{{"time", 1234.5},
                                     {"event", "search"},
                                     {"parameters", {{"text", "l'\"é\n\uFFFD"}}}}));
    ASSERT_TRUE(std::getline(lines, line));
    EXPECT_EQ(nlohmann::json::parse(line, nullptr, false)["parameters"], nlohmann::json::object());
    EXPECT_FALSE(std::getline(lines, line));
}

/// Whether a program that starts now writes its events.
bool collectsIn(const TemporaryFolder& folder)
{
    const support::FakeClock clock;
    LocalAnalytics(folder / "state", folder / "config", clock).logEvent("search", {});
    return std::filesystem::remove(folder / "state/analytics.jsonl");
}

TEST(LocalAnalytics, TheUsersRefusalOutlivesTheProgram)
{
    const TemporaryFolder folder;
    const support::FakeClock clock;
    EXPECT_TRUE(collectsIn(folder));
    for (const bool enabled : {false, true}) {
        LocalAnalytics analytics(folder / "state", folder / "config", clock);
        analytics.setAnalyticsCollectionEnabled(enabled);
        analytics.logEvent("at once", {});
        EXPECT_EQ(std::filesystem::remove(folder / "state/analytics.jsonl"), enabled);
        EXPECT_EQ(collectsIn(folder), enabled);
        std::filesystem::remove_all(folder / "state");
        EXPECT_EQ(collectsIn(folder), enabled) << "the state folder was cleared";
    }
}

TEST(LocalAnalytics, TakesOverARefusalThatVersion1Kept)
{
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder / "state");
    writeContent(folder / "state/analytics.json", "{\"collectionEnabled\": false}");

    EXPECT_FALSE(collectsIn(folder));

    EXPECT_FALSE(std::filesystem::exists(folder / "state/analytics.json"));
    std::filesystem::remove_all(folder / "state");
    EXPECT_FALSE(collectsIn(folder));
}

TEST(LocalAnalytics, ADamagedFlagCollectsNothing)
{
    for (const char* content : {"", "{", "[]", "{}", "{\"collectionEnabled\": 1}"}) {
        const TemporaryFolder folder;
        std::filesystem::create_directory(folder / "config");
        writeContent(folder / "config/analytics.json", content);
        EXPECT_FALSE(collectsIn(folder)) << content;
    }
}

TEST(LocalAnalytics, StaysBelowItsCapAndLosesAnEventThatIsTooLarge)
{
    const TemporaryFolder folder;
    const support::FakeClock clock;
    LocalAnalytics analytics(folder.path(), folder.path(), clock);

    analytics.logEvent("huge", {{"text", std::string(LocalAnalytics::kMaximumBytes, 'x')}});
    for (int turn = 0; turn < 400; ++turn) {
        analytics.logEvent("event", {{"text", std::string(1000, 'x')}});
    }

    EXPECT_LE(std::filesystem::file_size(folder / "analytics.jsonl"),
              LocalAnalytics::kMaximumBytes);
    EXPECT_TRUE(contentOf(folder / "analytics.jsonl").starts_with("{\"time\":"));
}

} // namespace lumora::platform
