// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "navigation/options_table_view_controller.h"

#include "build_settings.h"
#include "support/world.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace lumora {
namespace {

using navigation::OptionsTableViewController;
using platform::IndexPath;
using platform::SettingValue;
using support::World;

class Listener final : public navigation::OptionsTableViewControllerDelegate {
public:
    void optionsClosed(bool fieldsChanged) override { closings.push_back(fieldsChanged); }

    std::vector<bool> closings;
};

class Options : public testing::Test {
protected:
    void SetUp() override
    {
        options.queue = world.queue.get();
        options.delegate = &listener;
        options.loadViewIfNeeded();
        options.viewWillAppear();
    }

    /// What a row shows besides its label: "on", "off", the number of the
    /// chosen segment or the text on the right.
    std::string shown(IndexPath path)
    {
        const auto cell = options.cellForRow(path);
        if (const auto* control = std::get_if<platform::SwitchControl>(&cell.control)) {
            EXPECT_EQ(cell.reuseIdentifier, "SwitchCell");
            EXPECT_FALSE(cell.selectable);
            return control->on ? "on" : "off";
        }
        if (const auto* control = std::get_if<platform::SegmentedControl>(&cell.control)) {
            EXPECT_EQ(cell.reuseIdentifier, "SegmentCell");
            EXPECT_FALSE(cell.selectable);
            return std::to_string(control->selected);
        }
        EXPECT_EQ(cell.reuseIdentifier, "DetailCell");
        EXPECT_EQ(cell.accessory, platform::CellAccessory::DisclosureIndicator);
        return cell.detailText;
    }

    World world;
    Listener listener;
    OptionsTableViewController options{world.services()};
};

TEST_F(Options, HasFourSectionsWithTheirTitlesAndFooters)
{
    world.bundle.texts["settings.history"] = "Histoire";
    world.bundle.texts["settings.history_info"] = "the last %d";
    using Text = std::optional<std::string>;
    struct {
        int section;
        int rows;
        Text header;
        Text footer;
    } const cases[] = {
        {0, 4, "Search", "settings.conjugations.info"},
        {1, 3, "Conjugations", {}},
        {2, 2, "Histoire", "the last 50"},
        {3, 1, "Data Collection", "settings.analytics.info"},
        {4, 0, {}, {}},
        {-1, 0, {}, {}},
    };
    EXPECT_EQ(options.numberOfSections(), 4);
    for (const auto& c : cases) {
        SCOPED_TRACE(c.section);
        EXPECT_EQ(options.numberOfRowsInSection(c.section), c.rows);
        EXPECT_EQ(options.titleForHeaderInSection(c.section), c.header);
        EXPECT_EQ(options.titleForFooterInSection(c.section), c.footer);
    }
}

TEST_F(Options, EachRowShowsWhatTheStoreHolds)
{
    struct {
        IndexPath path;
        const char* key;
        std::optional<SettingValue> stored;
        const char* shown;
    } const cases[] = {
        {{0, 0}, "IncludeEnglish", {}, "off"},
        {{0, 1}, "SearchFrom", {}, "0"},
        {{0, 1}, "SearchFrom", "W", "1"},
        {{0, 2}, "SortByLang", {}, "1"},
        {{0, 2}, "SortByLang", false, "0"},
        {{0, 2}, "SortByLang", "no boolean", "1"},
        {{0, 3}, "IncludeConjugations", {}, "off"},
        {{0, 3}, "SearchConjugations", true, "off"},
        {{0, 3}, "IncludeConjugations", true, "on"},
        {{0, 3}, "IncludeConjugations", std::int64_t{1}, "off"},
        {{1, 0}, "ShowTranslated", {}, "1"},
        {{1, 1}, "translation_language", {}, "settings.translations.automatic"},
        {{1, 1}, "translation_language", "xx", "settings.translations.automatic"},
        {{1, 1}, "translation_language", "tr", "settings.translations.turkish"},
        {{1, 2}, "audio_speed", {}, "100%"},
        {{1, 2}, "audio_speed", -1.0, "100%"},
        {{1, 2}, "audio_speed", 0.999, "99%"},
        {{1, 2}, "audio_speed", 1e30, "1000000000%"},
        {{2, 0}, "UseHistory", {}, "on"},
        {{2, 0}, "UseHistory", false, "off"},
        {{2, 1}, "UseHistory", {}, ""},
        {{3, 0}, "analytics_collection_enabled", {}, "on"},
        {{3, 0}, "analytics_collection_enabled", false, "off"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.key << " expects " << c.shown);
        if (c.stored) {
            world.settings.setValue(*c.stored, c.key);
        }
        EXPECT_EQ(shown(c.path), c.shown);
        world.settings.removeValue(c.key);
    }
}

TEST_F(Options, EachControlWritesItsKeyAtOnce)
{
    std::vector<bool> toggles;
    const auto subscription = world.notifications.addObserver(
        "HistoryFeatureToggled", [&](const platform::Notification& news) {
            EXPECT_EQ(world.settings.boolForKey("UseHistory"), std::get<bool>(news.object));
            toggles.push_back(std::get<bool>(news.object));
        });
    struct {
        IndexPath path;
        bool isSwitch;
        int value;
        const char* key;
        std::optional<SettingValue> stored;
    } const cases[] = {
        {{0, 0}, true, 1, "IncludeEnglish", true},
        {{0, 1}, false, 1, "SearchFrom", "W"},
        {{0, 1}, false, 0, "SearchFrom", "S"},
        {{0, 2}, false, 0, "SortByLang", false},
        {{0, 3}, true, 1, "IncludeConjugations", true},
        {{1, 0}, false, 1, "ShowTranslated", true},
        {{2, 0}, true, 0, "UseHistory", false},
        {{3, 0}, true, 0, "analytics_collection_enabled", false},
        {{3, 0}, true, 1, "analytics_collection_enabled", true},
        // Rows without such a control, and a control that is on no row.
        {{0, 2}, true, 1, "SortByLang", false},
        {{0, 0}, false, 0, "IncludeEnglish", true},
        {{4, 0}, true, 0, "analytics_collection_enabled", true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.key << " " << c.value);
        options.viewWillAppear();
        const int flushes = world.settings.flushes;
        if (c.isSwitch) {
            options.switchToggled(c.path, c.value == 1);
        } else {
            options.segmentChanged(c.path, c.value);
        }
        EXPECT_EQ(world.settings.objectForKey(c.key), c.stored);
        EXPECT_EQ(world.settings.flushes, flushes + 1);
        EXPECT_TRUE(options.fieldsChanged);
        if (std::string_view{c.key} == "analytics_collection_enabled") {
            EXPECT_EQ(world.analytics.collectionEnabled, std::get<bool>(*c.stored));
        }
    }
    EXPECT_EQ(toggles, std::vector{false});
}

TEST_F(Options, LanguageAndSpeedAreChosenFromSheets)
{
    world.device.languages = {"pt-BR"};
    world.bundle.texts["settings.includeenglish"] = "and in %@";
    using Choices = std::vector<std::pair<const char*, std::optional<SettingValue>>>;
    struct {
        IndexPath path;
        std::optional<std::string> title;
        const char* key;
        Choices choices;
    } const cases[] = {
        {{1, 1},
         {},
         "translation_language",
         {{"settings.translations.automatic", {}},
          {"settings.translations.english", "en"},
          {"settings.translations.dutch", "nl"},
          {"settings.translations.french", "fr"},
          {"settings.translations.german", "de"},
          {"settings.translations.italian", "it"},
          {"settings.translations.portuguese", "pt"},
          {"settings.translations.spanish", "es"}}},
        {{1, 2},
         "Audio Speed",
         "audio_speed",
         {{"100%", std::int64_t{1}}, {"75%", 0.75}, {"50%", 0.5}, {"25%", 0.25}}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.key);
        options.didSelectRow(c.path);
        const auto& [sheet, anchor] = world.presenter.sheets.back();
        EXPECT_EQ(anchor, c.path);
        EXPECT_EQ(sheet.title, c.title);
        ASSERT_EQ(sheet.actions.size(), c.choices.size() + 1);
        EXPECT_EQ(sheet.actions.back().title, "export.cancel");
        EXPECT_EQ(sheet.actions.back().style, platform::ActionStyle::Cancel);
        for (std::size_t choice = 0; choice < c.choices.size(); ++choice) {
            options.viewWillAppear();
            const auto& action = sheet.actions[choice];
            const int flushes = world.settings.flushes;
            const int reloads = world.table(options).reloads;
            action.handler();
            EXPECT_EQ(action.title, c.choices[choice].first);
            EXPECT_EQ(shown(c.path), action.title);
            EXPECT_EQ(world.settings.objectForKey(c.key), c.choices[choice].second);
            EXPECT_EQ(world.settings.flushes, flushes + 1);
            EXPECT_EQ(world.table(options).reloads, reloads + 1);
            EXPECT_TRUE(options.fieldsChanged);
        }
    }
    EXPECT_EQ(options.cellForRow({0, 0}).text, "and in settings.translations.spanish");
    world.settings.removeValue("translation_language");
    EXPECT_EQ(options.cellForRow({0, 0}).text, "and in settings.translations.english");
}

TEST_F(Options, TheHistoryIsClearedAfterAYes)
{
    int refreshes = 0;
    const auto subscription =
        world.notifications.addObserver("RefreshHistory", [&](const platform::Notification&) {
            world.count("verb"); // would stop the program inside the queue
            ++refreshes;
        });
    world.execute("INSERT INTO history(verbid, timestamp) VALUES(1, 1), (2, 2)");
    options.didSelectRow({2, 1});
    const auto sheet = world.presenter.sheets.back().sheet;
    ASSERT_EQ(sheet.actions.size(), 2U);
    EXPECT_EQ(sheet.title, "settings.history_items_clear");
    EXPECT_EQ(sheet.actions[0].style, platform::ActionStyle::Normal);
    EXPECT_EQ(sheet.actions[1].style, platform::ActionStyle::Cancel);
    EXPECT_EQ(world.count("history"), 2);

    world.execute("CREATE TEMP TABLE goes_with_the_connection(x)");
    sheet.actions[0].handler();
    EXPECT_EQ(world.count("history"), 0);
    EXPECT_EQ(world.count("sqlite_temp_master"), 0);
    EXPECT_EQ(world.console.str(), "");
    world.execute("DROP TABLE history");
    sheet.actions[0].handler();
    EXPECT_EQ(world.console.str(), "Unable to delete favourites\n");
    options.queue = nullptr;
    sheet.actions[0].handler();
    EXPECT_EQ(refreshes, 3);
    EXPECT_FALSE(options.fieldsChanged);
}

TEST_F(Options, TellsItsDelegateWhenItHasGoneWhetherAnythingChanged)
{
    world.presenter.holdsDismissals = true;
    options.viewDidAppear();
    const std::vector<support::RecordingAnalytics::Event> events{{"settings", {}}};
    EXPECT_EQ(world.analytics.events, events);

    const auto& done = options.navigationItem().rightBarButtons.at(0);
    done.action();
    EXPECT_TRUE(listener.closings.empty());
    world.presenter.finishDismissals();

    options.switchToggled({0, 0}, true);
    done.action();
    options.viewWillAppear();
    world.presenter.finishDismissals();
    done.action();
    world.presenter.finishDismissals();
    EXPECT_EQ(listener.closings, (std::vector{false, true, false}));

    options.delegate = nullptr;
    done.action();
    EXPECT_EQ(world.presenter.dismissed.size(), 3U);
}

TEST_F(Options, LeadsToTheWebsiteThatItsHeaderNames)
{
    EXPECT_EQ(options.header.openWebsiteButton, build::kWebsiteUrl);
    options.openWebsite();
    EXPECT_EQ(world.urlOpener.opened, std::vector<std::string>{options.webUrl});
}

} // namespace
} // namespace lumora
