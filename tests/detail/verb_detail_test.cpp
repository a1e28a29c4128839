// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "detail/verb_detail_table_view_controller.h"
#include "detail/verb_page.h"

#include "data/tense_table.h"
#include "support/world.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using detail::VerbDetailTableViewController;
using platform::PlayControl;
using Event = support::RecordingAnalytics::Event;
using support::World;

class VerbDetail : public testing::Test {
protected:
    std::shared_ptr<VerbDetailTableViewController> open(const data::VerbPtr& verb)
    {
        auto detail = std::make_shared<VerbDetailTableViewController>(world.services());
        detail->queue = world.queue.get();
        detail->selectedVerb = verb;
        detail->loadViewIfNeeded();
        detail->viewWillAppear();
        detail->viewDidAppear();
        return detail;
    }

    /// The button of the bar with that identifier.
    static platform::BarButton button(const VerbDetailTableViewController& detail,
                                      const std::string& identifier)
    {
        for (const auto& button : detail.navigationItem().rightBarButtons) {
            if (button.identifier == identifier) {
                return button;
            }
        }
        ADD_FAILURE() << "no button is called " << identifier;
        return {};
    }

    World world;
    data::VerbPtr aller = world.verb(3);
};

TEST_F(VerbDetail, GroupsTheFormsByTenseInTheirOrder)
{
    world.execute("INSERT INTO conjugation VALUES"
                  "(901, 3, 'nous', 'allons', 'indicatifPresent', 904, 1),"
                  "(902, 3, 'x', 'hidden', 'indicatifPresent', 905, 0),"
                  "(903, 3, 'x', 'unknown', 'IndicatifPresent', 906, 1),"
                  "(904, 3, NULL, NULL, 'infinitif', 907, 1)");

    open(aller);

    ASSERT_EQ(aller->indicatifPresent.size(), 3U);
    EXPECT_EQ(aller->indicatifPresent[0]->verb, "vais");
    EXPECT_EQ(aller->indicatifPresent[2]->verb, "allons");
    EXPECT_EQ(aller->indicatifPresent[2]->order, 904);
    ASSERT_EQ(aller->infinitif.size(), 1U);
    EXPECT_EQ(aller->infinitif[0]->pronoun, "");
    EXPECT_FALSE(aller->loaded);
}

TEST_F(VerbDetail, CountsSectionsAndItemsByMood)
{
    const auto detail = open(aller);
    const int sections[] = {9, 5, 4, 4};
    const int items[] = {8, 4, 3, 2};
    const char* names[] = {"CONJUGATIONS_IND", "CONJUGATIONS_SUB", "CONJUGATIONS_CON",
                           "CONJUGATIONS_OTHER"};
    for (int segment = 0; segment < 4; ++segment) {
        detail->selectVerbTypes(segment);
        EXPECT_EQ(detail->numberOfSections(), sections[segment]);
        EXPECT_EQ(detail->numberOfItems(), items[segment]);
        EXPECT_EQ(world.analytics.events.back(),
                  (Event{"conjugation_tab", {{"name", names[segment]}}}));
    }
    EXPECT_EQ(detail->titleForHeaderInSection(0), std::nullopt);
    EXPECT_EQ(detail->titleForHeaderInSection(1), "tense.other.imperative");
    EXPECT_EQ(detail->titleForHeaderInSection(3), std::nullopt);
    EXPECT_EQ(detail->numberOfRowsInSection(3), 0);
}

TEST_F(VerbDetail, ShowsARowAsPronounFormAndPlayControl)
{
    world.execute("INSERT INTO conjugation VALUES(NULL, 3, 'j''', 'irai', "
                  "'indicatifFuturSimple', 10, 1)");
    const auto detail = open(aller);

    EXPECT_EQ(detail->cellForRow({0, 0}).text, "go");
    EXPECT_FALSE(detail->cellForRow({0, 0}).selectable);
    const auto cell = detail->cellForRow({1, 0});
    EXPECT_EQ(cell.text, "je");
    EXPECT_EQ(cell.detailText, "vais");
    EXPECT_EQ(cell.accessibilityLabel, "je vais");
    EXPECT_EQ(detail->cellForRow({5, 0}).accessibilityLabel, "j'irai");
    EXPECT_EQ(detail->cellForItem(4).rows[0].accessibilityLabel, "j'irai");
    EXPECT_TRUE(detail->cellForRow({5, 0}).lineStyle.joined);
    EXPECT_TRUE(detail->cellForItem(4).rows[0].lineStyle.joined);
    EXPECT_FALSE(cell.lineStyle.joined);
    EXPECT_EQ(std::get<PlayControl>(cell.control).indicator,
              std::get<PlayControl>(detail->cellForRow({1, 0}).control).indicator);

    EXPECT_TRUE(std::holds_alternative<std::monostate>(detail->cellForRow({1, 7}).control));
    EXPECT_EQ(world.crashReporter.lines.back(), "Unable to find conjugation for table row [1, 7]");
}

TEST_F(VerbDetail, MarksStemsAndEndingsUntilTheReaderTurnsItOff)
{
    // Of the third row by order, an ending of one byte and a changed stem.
    world.execute("INSERT INTO form_divisions VALUES(7, x'0000070000')");
    world.execute("INSERT INTO verb_facts VALUES(3, 3, 'aller', NULL, 'être', '', '', 1, 7)");
    const auto detail = open(aller);
    detail->selectVerbTypes(3);
    using platform::RunStyle;
    const std::vector<platform::TextRun> marked{{"v", RunStyle::Underlined},
                                                {"a", RunStyle::Accent}};

    const auto cell = detail->cellForRow({1, 0});
    EXPECT_EQ(cell.lineStyle.runs, marked);
    EXPECT_EQ(cell.lineStyle.hint, "tu");
    EXPECT_EQ(cell.lineStyle.accessibilityHint, "tu, form.stem");
    EXPECT_EQ(cell.text, "") << "the label of the pronoun stays empty";
    EXPECT_EQ(detail->cellForItem(0).rows[0].lineStyle.runs, marked);

    detail->setMarksForms(false);
    EXPECT_TRUE(detail->cellForRow({1, 0}).lineStyle.runs.empty());
    EXPECT_EQ(detail->cellForRow({1, 0}).lineStyle.accessibilityHint, "tu");
    EXPECT_FALSE(open(aller)->marksForms()) << "on the next verb's screen";
}

TEST_F(VerbDetail, KnowsATenseOutOfUseFromAFailedReading)
{
    EXPECT_TRUE(open(aller)->page().hasForms());
    world.execute("DROP TABLE conjugation");
    EXPECT_FALSE(open(world.verb(3))->page().hasForms());
}

TEST_F(VerbDetail, FillsACollectionCellWithSixLines)
{
    for (int order = 10; order < 17; ++order) {
        world.execute("INSERT INTO conjugation VALUES(NULL, 3, 'p', 'f', 'indicatifImparfait', " +
                      std::to_string(order) + ", 1)");
    }
    const auto detail = open(aller);

    const auto present = detail->cellForItem(0);
    ASSERT_EQ(present.rows.size(), 6U);
    EXPECT_EQ(present.title, "tense.ind.present");
    EXPECT_EQ(present.rows[1].trailing, "vas");
    EXPECT_EQ(present.rows[1].audioWidth, 30);
    EXPECT_EQ(present.rows[1].audioPadding, 8);
    EXPECT_FALSE(present.rows[1].controlHidden);
    EXPECT_EQ(present.rows[2].leading, " ");
    EXPECT_EQ(present.rows[2].trailing, " ");
    EXPECT_EQ(present.rows[2].audioWidth, 0);
    EXPECT_TRUE(present.rows[2].controlHidden);
    EXPECT_EQ(detail->cellForItem(2).rows.size(), 6U) << "the seventh form is not shown";
    EXPECT_EQ(present.rows[0].control.indicator, detail->cellForItem(0).rows[0].control.indicator);
}

TEST_F(VerbDetail, TakesTitlesFromTheChosenNameSetAtEveryLookup)
{
    const auto detail = open(aller);
    world.settings.setValue(true, "ShowTranslated");
    EXPECT_EQ(detail->cellForItem(0).title, "tense.ind.present_french");
    detail->selectVerbTypes(3);
    EXPECT_EQ(detail->cellForItem(0).title, "tense.other.imperative_french");
    world.settings.setValue(false, "ShowTranslated");
    EXPECT_EQ(detail->cellForItem(0).title, "tense.other.imperative");
}

TEST_F(VerbDetail, WithoutAVerbShowsTheLabelAndNoToolbar)
{
    for (const auto& verb : {data::VerbPtr{}, aller}) {
        const bool there = verb != nullptr;
        SCOPED_TRACE(there);
        const auto detail = open(verb);

        EXPECT_EQ(detail->numberOfSections(), there ? 9 : 0);
        EXPECT_EQ(detail->numberOfItems(), there ? 8 : 0);
        EXPECT_EQ(detail->selectVerbLabel.hidden, there);
        EXPECT_EQ(detail->toolbar.hidden, !there);
        EXPECT_EQ(detail->toolbarHeightConstaint, there ? detail->defaultToolbarHeight : 0);
        EXPECT_EQ(detail->header().title, there ? "aller (go)" : "");
        EXPECT_EQ(button(*detail, "favourite").enabled, there);
        EXPECT_EQ(button(*detail, "export").enabled, there);
        EXPECT_EQ(world.count("history"), there ? 1 : 0);
    }
}

TEST_F(VerbDetail, RecordsTheViewOnceBesideTheFiftyNewestAndAnnouncesIt)
{
    world.clock.now = platform::kReferenceDate + 123456789.75;
    for (int time = 1; time <= 60; ++time) {
        world.execute("INSERT INTO history(verbid, timestamp) VALUES (" +
                      std::to_string(100 + time) + ", " + std::to_string(time) + ")");
    }
    world.execute("INSERT INTO history(verbid, timestamp) VALUES (3, 1), (3, 100)");

    open(aller);

    EXPECT_EQ(world.count("history WHERE verbid = 3"), 1);
    EXPECT_EQ(world.count("history WHERE verbid = 3 AND timestamp = 123456789.75"), 1);
    EXPECT_EQ(world.count("history"), 51);
    EXPECT_EQ(world.count("history WHERE timestamp <= 10"), 0);
    EXPECT_EQ(world.posted["VerbViewed"], 1);
    EXPECT_EQ(world.settings.integerForKey("number_of_verbs_viewed"), 1);
    EXPECT_EQ(world.analytics.events.back(),
              (Event{"select_content", {{"item_id", "3"}, {"item_name", "aller"}}}));
}

TEST_F(VerbDetail, RecordsNothingOnlyWhenTheHistoryIsAnExplicitFalse)
{
    const std::pair<std::optional<platform::SettingValue>, int> cases[] = {
        {std::nullopt, 1}, {true, 1}, {false, 0}, {std::int64_t{0}, 1}};
    int views = 0;
    for (const auto& [useHistory, rows] : cases) {
        world.execute("DELETE FROM history");
        if (useHistory) {
            world.settings.setValue(*useHistory, "UseHistory");
        }
        open(aller);
        EXPECT_EQ(world.count("history"), rows);
        EXPECT_EQ(world.posted["VerbViewed"], ++views);
    }
}

TEST_F(VerbDetail, AFailedReadingIsLoggedAndTheListsStay)
{
    aller->imperatif.push_back(std::make_shared<data::Conjugation>());
    world.execute("DROP TABLE conjugation");

    open(aller);

    EXPECT_EQ(world.crashReporter.lines,
              (std::vector<std::string>{"An error occurred when reading verb conjugation: no such "
                                        "table: conjugation (1)"}));
    EXPECT_EQ(aller->imperatif.size(), 1U);
    EXPECT_EQ(world.count("history"), 0) << "the work of the block ended";
}

TEST_F(VerbDetail, AVerbWithoutAQueueStopsTheProgram)
{
    VerbDetailTableViewController detail{world.services()};
    detail.selectedVerb = aller;
    EXPECT_DEATH(detail.loadViewIfNeeded(), "without the database");
    EXPECT_DEATH(detail.toggleFavourite(), "without the database");
}

TEST_F(VerbDetail, TogglesTheFavouriteAndFollowsOthers)
{
    const auto detail = open(aller);
    const auto other = open(world.verb(3));
    const auto icon = [](const VerbDetailTableViewController& screen) {
        return button(screen, "favourite").image;
    };
    EXPECT_EQ(icon(*detail), "ic_favorite_toolbar_border");

    button(*detail, "favourite").action();

    EXPECT_EQ(icon(*detail), "ic_favorite_toolbar");
    EXPECT_EQ(world.count("favourite WHERE verbid = 3"), 1);
    EXPECT_EQ(icon(*other), "ic_favorite_toolbar_border") << "detail screens ignore each other";

    auto fromAList = world.verb(3);
    fromAList->isFavourite = true;
    world.notifications.post({"VerbFavouriteToggled", {}, {{"verb", fromAList}}});
    EXPECT_EQ(icon(*other), "ic_favorite_toolbar");
    world.notifications.post({"VerbFavouriteToggled", {}, {{"verb", world.verb(1)}}});
    EXPECT_EQ(icon(*other), "ic_favorite_toolbar") << "another verb's news";
}

TEST_F(VerbDetail, AsksForAReviewOnceFromTheTwentyFirstViewOn)
{
    const struct {
        std::int64_t viewedBefore;
        bool asked;
        bool inFront;
        const char* argument;
        int requests;
        bool askedAfter;
        std::int64_t viewedAfter;
    } cases[] = {
        {19, false, true, "", 0, false, 20},  {20, false, true, "", 1, true, 21},
        {500, false, true, "", 1, true, 501}, {20, true, true, "", 0, true, 21},
        {20, false, false, "", 0, true, 21},  {20, false, true, "ui_test", 0, false, 20},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.viewedBefore);
        world.settings.setValue(c.viewedBefore, "number_of_verbs_viewed");
        world.settings.setValue(c.asked, "asked_for_review");
        world.device.activeScene = c.inFront;
        world.device.arguments = {"lumora", c.argument};
        world.reviewPrompter.requests = 0;

        open(aller);

        EXPECT_EQ(world.reviewPrompter.requests, c.requests);
        EXPECT_EQ(world.settings.boolForKey("asked_for_review"), c.askedAfter);
        EXPECT_EQ(world.settings.integerForKey("number_of_verbs_viewed"), c.viewedAfter);
    }
}

TEST_F(VerbDetail, SharesBothRenderingsOrSaysWhyNot)
{
    const auto detail = open(aller);
    const auto empty = open(nullptr);
    const std::string nothing = "Unable to export verb. Most likely an issue with the template (or "
                                "no verb, somehow)\n";

    button(*empty, "export").action();
    EXPECT_EQ(world.console.str(), nothing);
    world.console.str({});
    button(*detail, "export").action();
    EXPECT_EQ(world.console.str(), "Unable to find mustache JS file\n" + nothing);

    world.console.str({});
    for (const char* name : {"mustache.min.js", "export_html.mustache", "export_txt.mustache"}) {
        world.bundle.resources[name] = world.folder / name;
    }
    button(*detail, "export").action();
    EXPECT_EQ(world.crashReporter.lines.back(), "Unable to export. An error occurred. %@");
    EXPECT_EQ(world.console.str(), "");
    EXPECT_TRUE(world.shareSheet.shared.empty());

    for (const auto& [name, file] : world.bundle.resources) {
        support::writeContent(file, name);
    }
    button(*detail, "export").action();
    ASSERT_EQ(world.shareSheet.shared.size(), 1U);
    const auto& shared = world.shareSheet.shared.front();
    EXPECT_EQ(shared.on, detail.get());
    EXPECT_EQ(shared.items.title, "aller");
    EXPECT_EQ(shared.items.html, "result 2");
    EXPECT_EQ(shared.items.text, "result 3");
    EXPECT_EQ(shared.anchor, "export");
}

TEST_F(VerbDetail, APreviewHasNoToolbarAndIsNotRecordedAgainWhenItIsOpened)
{
    const auto detail = std::make_shared<VerbDetailTableViewController>(world.services());
    detail->queue = world.queue.get();
    detail->selectedVerb = aller;
    detail->isPeeking = true;
    detail->loadViewIfNeeded();
    detail->viewWillAppear();
    EXPECT_TRUE(detail->verbTypeSegmentedControl.hidden);
    EXPECT_TRUE(detail->toolbar.hidden);
    detail->numberOfItems();
    EXPECT_EQ(detail->toolbarHeightConstaint, detail->defaultToolbarHeight);
    detail->numberOfSections();
    EXPECT_EQ(detail->toolbarHeightConstaint, 0) << "only the table knows of previews";

    detail->isPeeking = false;
    detail->loadViewIfNeeded();
    detail->viewWillAppear();

    EXPECT_FALSE(detail->verbTypeSegmentedControl.hidden);
    EXPECT_EQ(detail->toolbarHeightConstaint, detail->defaultToolbarHeight);
    EXPECT_EQ(world.posted["VerbViewed"], 1);
    EXPECT_EQ(world.settings.integerForKey("number_of_verbs_viewed"), 1);
}

} // namespace
} // namespace lumora
