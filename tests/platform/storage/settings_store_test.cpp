// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/storage/file_settings_store.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <utility>

namespace lumora::platform {

namespace {

using support::contentOf;
using support::TemporaryFolder;
using support::writeContent;

constexpr auto kHighest = std::numeric_limits<std::int64_t>::max();
constexpr auto kLowest = std::numeric_limits<std::int64_t>::min();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

} // namespace

TEST(SettingsStore, TypedReadsCoerceByTheTable)
{
    const struct {
        SettingValue stored;
        std::int64_t asInteger;
        const char* asText;
        float asFloat;
        bool asBool;
    } cases[] = {
        {true, 1, "1", 1, true},
        {false, 0, "0", 0, false},
        {std::int64_t{0}, 0, "0", 0, false},
        {std::int64_t{-7}, -7, "-7", -7, true},
        {kHighest, kHighest, "9223372036854775807", 9223372036854775808.0F, true},
        {0.0, 0, "0", 0, false},
        {0.25, 0, "0.25", 0.25F, true},
        {-2.9, -2, "-2.9", -2.9F, true},
        {1.0, 1, "1", 1, true},
        {250000.0, 250000, "250000", 250000, true},
        {1e300, kHighest, "1e+300", std::numeric_limits<float>::infinity(), true},
        {-1e300, kLowest, "-1e+300", -std::numeric_limits<float>::infinity(), true},
        {std::string("1"), 0, "1", 0, false},
        {std::string("true"), 0, "true", 0, false},
        {std::string(), 0, "", 0, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.asText);
        MemorySettingsStore settings;
        settings.setValue(c.stored, "key");
        EXPECT_EQ(settings.boolForKey("key"), c.asBool);
        EXPECT_EQ(settings.integerForKey("key"), c.asInteger);
        EXPECT_EQ(settings.floatForKey("key"), c.asFloat);
        EXPECT_EQ(settings.stringForKey("key"), c.asText);
        EXPECT_EQ(settings.objectForKey("key"), c.stored);
    }
}

TEST(SettingsStore, AMissingKeyDiffersFromFalse)
{
    MemorySettingsStore settings;
    settings.setValue(false, "off");
    settings.setValue(std::int64_t{1}, "number");

    EXPECT_EQ(settings.stringForKey("missing"), std::nullopt);
    EXPECT_EQ(settings.objectForKey("missing"), std::nullopt);
    EXPECT_EQ(boolObjectForKey(settings, "missing"), std::nullopt);
    EXPECT_EQ(boolObjectForKey(settings, "off"), false);
    EXPECT_EQ(boolObjectForKey(settings, "number"), std::nullopt);
}

TEST(FileSettingsStore, EveryKindComesBackAsItself)
{
    const TemporaryFolder folder;
    const auto file = folder / "config/lumora/settings.json";
    const std::pair<const char*, SettingValue> values[] = {
        {"bool", true},        {"one", std::int64_t{1}}, {"one point", 1.0},
        {"tenth", 0.1},        {"tiny", 5e-324},         {"large", 1e300},
        {"highest", kHighest}, {"lowest", kLowest},      {"text", "à \"/\\\n☂"},
        {"", std::string()},
    };
    {
        FileSettingsStore settings(file);
        for (const auto& [key, value] : values) {
            settings.setValue(value, key);
        }
        settings.setValue(kNotANumber, "no number");
        settings.setValue(std::string("a\xffz"), "malformed");
    } // written at the end

    const FileSettingsStore settings(file);

    for (const auto& [key, value] : values) {
        EXPECT_EQ(settings.objectForKey(key), value) << key;
    }
    EXPECT_EQ(settings.objectForKey("no number"), std::nullopt);
    EXPECT_EQ(settings.stringForKey("malformed"), "a\uFFFDz");
    EXPECT_EQ(std::filesystem::status(file).permissions(),
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
}

TEST(FileSettingsStore, DropsSingleValuesOfAnotherKindHoweverDeep)
{
    const TemporaryFolder folder;
    const auto file = folder / "settings.json";
    const std::string deep = std::string(200'000, '[') + std::string(200'000, ']');
    writeContent(file,
                 R"({"null": null, "list": [1, {"kept": 8}], "object": {"kept": 9, "list": []},
                     "kept": 1, "huge": 18446744073709551615, "kept": 2, "deep": )" +
                     deep + "}");

    const FileSettingsStore settings(file);

    EXPECT_EQ(settings.values(),
              (SettingsStore::Values{{"kept", std::int64_t{2}}, {"huge", 18446744073709551615.0}}));
}

TEST(FileSettingsStore, ADamagedFileIsPutAsideAndTheStoreStartsEmpty)
{
    const std::pair<const char*, std::string> cases[] = {
        {"empty", ""},
        {"cut short", R"({"a": true, "b": )"},
        {"two values", R"({"a": true} {})"},
        {"a list", R"([{"a": true}])"},
        {"a number", "1"},
        {"null", "null"},
        {"malformed text", "{\"a\": \"\xff\"}"},
        {"zeros after a power cut", std::string(200, '\0')},
        {"too deep to follow", R"({"a":)" + std::string(500'000, '[')},
        {"too big", R"({"a": true})" + std::string(std::size_t{1024} * 1024, ' ')},
    };
    for (const auto& [why, content] : cases) {
        SCOPED_TRACE(why);
        const TemporaryFolder folder;
        const auto file = folder / "settings.json";
        writeContent(file, content);
        writeContent(folder / "settings.json.damaged", "older");

        FileSettingsStore settings(file);

        EXPECT_TRUE(settings.values().empty());
        EXPECT_FALSE(std::filesystem::exists(file));
        EXPECT_EQ(contentOf(folder / "settings.json.damaged"), content);
        settings.setValue(true, "fresh");
        EXPECT_TRUE(settings.synchronize());
        EXPECT_TRUE(FileSettingsStore(file).boolForKey("fresh"));
    }
}

TEST(FileSettingsStore, WhatCannotBeReadIsNeverOverwritten)
{
    const TemporaryFolder folder;
    // A folder in the file's place refuses to be read, to root as well.
    const auto file = folder / "settings.json";
    std::filesystem::create_directory(file);

    FileSettingsStore settings(file);
    settings.setValue(true, "key");
    const auto written = settings.synchronize();

    ASSERT_FALSE(written);
    EXPECT_EQ(written.error().code, EISDIR);
    EXPECT_TRUE(std::filesystem::is_directory(file));
}

TEST(FileSettingsStore, WritesOnlyWhatChangedAndTriesAgainAfterAFailure)
{
    const TemporaryFolder folder;
    writeContent(folder / "plain", "");
    const auto file = folder / "plain/settings.json";
    FileSettingsStore settings(file);
    settings.setValue(std::int64_t{1}, "key");
    EXPECT_FALSE(settings.synchronize());
    std::filesystem::remove(folder / "plain");

    ASSERT_TRUE(settings.synchronize());
    ASSERT_TRUE(std::filesystem::exists(file));
    std::filesystem::remove(file);

    settings.setValue(std::int64_t{1}, "key");
    settings.removeValue("missing");
    EXPECT_TRUE(settings.synchronize());
    EXPECT_FALSE(std::filesystem::exists(file)) << "nothing had changed";
    settings.setValue(1.0, "key");
    EXPECT_TRUE(settings.synchronize());
    EXPECT_NE(contentOf(file).find("1.0"), std::string::npos) << "1 became 1.0";
    settings.removeValue("key");
    EXPECT_TRUE(settings.synchronize());
    EXPECT_TRUE(FileSettingsStore(file).values().empty());
}

} // namespace lumora::platform
