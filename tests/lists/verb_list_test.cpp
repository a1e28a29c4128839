// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lists/verb_list_table_view_controller.h"

#include "detail/verb_detail_table_view_controller.h"
#include "support/world.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using lists::VerbListTableViewController;
using platform::IndexPath;
using platform::SettingValue;
using support::World;

using Texts = std::vector<std::string>;

class VerbList : public testing::Test {
protected:
    World world;
};

TEST_F(VerbList, CutsSectionsByTheLetterOfTheSortColumn)
{
    const Texts byFrench{"A", "E", "F", "P"};
    const Texts byEnglish{"B", "F", "G", "H", "S", "É"};
    const struct {
        const char* why;
        std::optional<SettingValue> sortByLang;
        std::string language;
        Texts keys;
    } cases[] = {
        {"missing means French", {}, "de", byFrench},
        {"true means French", true, "de", byFrench},
        {"a number is no boolean", std::int64_t{0}, "de", byFrench},
        {"German is simplified", false, "de", {"A", "F", "G", "S"}},
        {"English keeps its accents, which come after Z", false, "en", byEnglish},
        {"Turkish has no column", false, "tr", byEnglish},
        {"Portuguese is plain", false, "pt-BR", {"", "F", "I", "S", "T", "É"}},
        {"an empty choice is none: the device's English", false, "", byEnglish},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        if (c.sortByLang) {
            world.settings.setValue(*c.sortByLang, "SortByLang");
        }
        world.settings.setValue(c.language, "translation_language");

        EXPECT_EQ(world.load<VerbListTableViewController>()->keys, c.keys);
    }
}

TEST_F(VerbList, IsNarrowedInFrontOfItsRows)
{
    using lists::VerbChip;
    world.execute("INSERT INTO verb_facts(verbid, use_class, verb_group) VALUES "
                  "(1, 1, 3), (2, 1, 3), (3, 2, 3), (4, 3, 3), (5, 4, 3), (6, 2, 1)");
    const auto shown = [](VerbListTableViewController& list) {
        Texts verbs;
        for (int section = 0; section < list.numberOfSections(); ++section) {
            for (int row = 0; row < list.numberOfRowsInSection(section); ++row) {
                if (list.showsRow({section, row})) {
                    verbs.push_back(list.cellForRow({section, row}).text);
                }
            }
        }
        return verbs;
    };
    const auto list = world.load<VerbListTableViewController>();
    EXPECT_EQ(shown(*list).size(), 6U);
    list->choose(VerbChip::Common, true);
    EXPECT_EQ(shown(*list), (Texts{"aller", "avoir", "être", "évanouir (s')"}));
    list->choose(VerbChip::Irregular, true);
    EXPECT_EQ(shown(*list), (Texts{"aller", "avoir", "être"}));
    EXPECT_EQ(list->keys, (Texts{"A", "E", "F", "P"})) << "the list itself is whole";
    EXPECT_EQ(list->verbs["E"].size(), 2U);

    const auto next = world.load<VerbListTableViewController>();
    EXPECT_EQ(shown(*next), (Texts{"aller", "avoir", "être"})) << "remembered";
    next->choose(VerbChip::Common, false);
    next->choose(VerbChip::Irregular, false);
    EXPECT_EQ(shown(*next).size(), 6U);

    world.execute("DROP TABLE verb_facts");
    const auto damaged = world.load<VerbListTableViewController>();
    damaged->choose(VerbChip::Common, true);
    EXPECT_EQ(shown(*damaged).size(), 6U);
}

TEST_F(VerbList, KeepsTheOrderOfTheQueryInsideASection)
{
    const auto list = world.load<VerbListTableViewController>();

    EXPECT_EQ(support::infinitives(list->verbs["E"]), (Texts{"être", "évanouir (s')"}));
    EXPECT_EQ(list->titleForHeaderInSection(1), "E");
    EXPECT_EQ(list->sectionForSectionIndexTitle("F", 0), 2);
    EXPECT_EQ(list->sectionForSectionIndexTitle("Q", 0), -1);
}

TEST_F(VerbList, ReadsNullAsEmptyAndAFavouriteOnlyFromARowOfItsOwn)
{
    world.execute("UPDATE verb SET german = NULL WHERE french = 'aller'");
    world.execute("INSERT INTO favourite(verbid) VALUES (3), (NULL)");
    world.settings.setValue(std::string{"de"}, "translation_language");
    const auto list = world.load<VerbListTableViewController>();

    const auto aller = list->cellForRow({0, 0});
    EXPECT_EQ(aller.text, "aller");
    EXPECT_EQ(aller.detailText, "");
    EXPECT_EQ(aller.accessibilityIdentifier, "aller");
    EXPECT_EQ(aller.image, "ic_favorite_list");
    EXPECT_EQ(list->cellForRow({1, 0}).image, "");
}

TEST_F(VerbList, AHomographsNoteLeavesItsTextsAsTheyAre)
{
    world.execute("INSERT INTO verb(_id, french, simplified_french) VALUES (20, 'aller', 'aller')");
    world.execute("INSERT INTO verb_facts(verbid, model, auxiliary, use_class) VALUES"
                  " (3, 'aller', 'être', 1), (20, 'aimer', 'avoir', 5)");
    world.settings.setValue(std::string{"fr"}, "translation_language");
    const auto list = world.load<VerbListTableViewController>();

    for (const auto& [row, note] : {std::pair{0, "être"}, {1, "avoir"}, {2, ""}}) {
        const auto cell = list->cellForRow({0, row});
        EXPECT_EQ(cell.text, row < 2 ? "aller" : "avoir");
        EXPECT_EQ(cell.detailText, cell.text);
        EXPECT_EQ(cell.note, note);
    }
}

TEST_F(VerbList, SwipeTogglesTheFavouriteEverywhere)
{
    const auto list = world.load<VerbListTableViewController>();
    const auto reloads = world.table(*list).reloads;

    auto actions = list->trailingSwipeActions({0, 0});
    ASSERT_EQ(actions.size(), 1U);
    EXPECT_EQ(actions[0].title, "action.favourite");
    EXPECT_EQ(actions[0].image, "favourite");
    EXPECT_EQ(actions[0].backgroundColor, platform::kLightGrayColor);
    bool completed = false;
    actions[0].handler([&](bool done) { completed = done; });

    EXPECT_TRUE(completed);
    EXPECT_EQ(world.count("favourite WHERE verbid = 3"), 1);
    EXPECT_EQ(world.posted["VerbFavouriteToggled"], 1);
    EXPECT_EQ(world.table(*list).reloads, reloads) << "its own news is no reason to reload";
    EXPECT_EQ(world.table(*list).reloadedRows, (std::vector<IndexPath>{{0, 0}}));
    EXPECT_EQ(list->cellForRow({0, 0}).image, "ic_favorite_list");

    actions = list->trailingSwipeActions({0, 0});
    EXPECT_EQ(actions[0].title, "action.favourite.remove");
    EXPECT_EQ(actions[0].image, "remove");
    EXPECT_EQ(actions[0].backgroundColor, platform::kRedColor);
    actions[0].handler([](bool) {});
    EXPECT_EQ(world.count("favourite"), 0);
}

TEST_F(VerbList, AFavouriteThatCannotBeWrittenStaysOnScreenAndOnTheConsole)
{
    const auto list = world.load<VerbListTableViewController>();
    world.execute("DROP TABLE favourite");

    list->trailingSwipeActions({0, 0})[0].handler([](bool) {});

    EXPECT_EQ(world.console.str(), "Unable to update favourite no such table: favourite\n");
    EXPECT_EQ(list->cellForRow({0, 0}).image, "ic_favorite_list");
    EXPECT_EQ(world.posted["VerbFavouriteToggled"], 1);
}

TEST_F(VerbList, ReloadsOnAFavouriteToggledElsewhere)
{
    const auto list = world.load<VerbListTableViewController>();
    world.execute("INSERT INTO favourite(verbid) VALUES (1)");

    world.notifications.post({"VerbFavouriteToggled", {}, {}});

    EXPECT_EQ(list->cellForRow({0, 1}).image, "ic_favorite_list");
}

TEST_F(VerbList, AFailedQueryLeavesSectionsWithoutRows)
{
    const auto list = world.load<VerbListTableViewController>();
    const auto keys = list->keys;
    world.execute("ALTER TABLE verb RENAME TO verb_gone");

    list->reloadVerbs();

    EXPECT_EQ(world.crashReporter.lines,
              Texts{"An error occurred when reading list of verbs: no such table: verb (1)"});
    EXPECT_EQ(list->keys, keys);
    EXPECT_EQ(list->numberOfRowsInSection(0), 0);
    EXPECT_TRUE(list->trailingSwipeActions({0, 0}).empty());
    EXPECT_EQ(list->cellForRow({0, 0}).text, "");
}

TEST_F(VerbList, WithoutAQueueItStaysEmpty)
{
    VerbListTableViewController list{world.services()};

    list.loadViewIfNeeded();

    EXPECT_EQ(list.numberOfSections(), 0);
    EXPECT_TRUE(world.crashReporter.lines.empty());
}

TEST_F(VerbList, ATapHandsTheVerbToTheDetailScreen)
{
    const auto list = world.load<VerbListTableViewController>();

    list->rowTapped({1, 1});

    const auto detail = world.shownDetail();
    ASSERT_TRUE(detail);
    ASSERT_TRUE(detail->selectedVerb);
    EXPECT_EQ(detail->selectedVerb->french, "évanouir (s')");
    EXPECT_EQ(detail->queue, world.queue.get());
    EXPECT_EQ(detail->selectedVerb, list->verbs["E"][1]) << "one record, shared";
}

} // namespace
} // namespace lumora
