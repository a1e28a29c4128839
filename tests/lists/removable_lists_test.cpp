// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lists/favourites_table_view_controller.h"
#include "lists/history_table_view_controller.h"

#include "support/world.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using lists::FavouritesTableViewController;
using lists::HistoryTableViewController;
using support::infinitives;
using support::World;

using Texts = std::vector<std::string>;

class RemovableLists : public testing::Test {
protected:
    World world;
};

TEST_F(RemovableLists, FavouritesFollowTheSortColumnAndOrphansAreNone)
{
    world.execute("INSERT INTO favourite(verbid) VALUES (3), (1), (NULL), (4711), (2)");
    const auto favourites = world.load<FavouritesTableViewController>();
    EXPECT_EQ(infinitives(favourites->verbs), (Texts{"aller", "avoir", "être"}));

    world.settings.setValue(false, "SortByLang");
    world.settings.setValue(std::string{"tr"}, "translation_language");
    world.notifications.post({"VerbFavouriteToggled", {}, {}});
    EXPECT_EQ(infinitives(favourites->verbs), (Texts{"être", "aller", "avoir"}));
}

TEST_F(RemovableLists, HistoryIsNewestFirstWithStars)
{
    world.execute("INSERT INTO history(verbid, timestamp) VALUES (1, 10.5), (3, 30), (2, 20)");
    world.execute("INSERT INTO favourite(verbid) VALUES (2)");
    const auto history = world.load<HistoryTableViewController>();

    EXPECT_EQ(infinitives(history->verbs), (Texts{"aller", "être", "avoir"}));
    EXPECT_EQ(history->cellForRow({0, 1}).image, "ic_favorite_list");
    EXPECT_EQ(history->cellForRow({0, 0}).image, "");

    for (const char* news : {"VerbViewed", "RefreshHistory", "VerbFavouriteToggled"}) {
        const auto before = world.table(*history).reloads;
        world.notifications.post({news, {}, {}});
        EXPECT_EQ(world.table(*history).reloads, before + 1) << news;
    }
}

TEST_F(RemovableLists, AskingForRowsShowsOrHidesTheEmptyState)
{
    const auto favourites = world.load<FavouritesTableViewController>();
    auto& table = world.table(*favourites);
    EXPECT_EQ(table.backgroundView.value().text, "favourites.empty");

    EXPECT_EQ(favourites->numberOfRowsInSection(0), 0);
    EXPECT_EQ(table.separatorStyle, platform::SeparatorStyle::None);
    EXPECT_EQ(table.backgroundHidden, false);

    world.execute("INSERT INTO favourite(verbid) VALUES (3)");
    favourites->reloadFavourites();
    EXPECT_EQ(favourites->numberOfRowsInSection(0), 1);
    EXPECT_EQ(table.separatorStyle, platform::SeparatorStyle::SingleLine);
    EXPECT_EQ(table.backgroundHidden, true);
}

TEST_F(RemovableLists, ASwipeDeletesTheRowButNotTheRecord)
{
    world.execute("INSERT INTO favourite(verbid) VALUES (3), (1)");
    world.execute("INSERT INTO history(verbid, timestamp) VALUES (3, 1), (3, 2), (1, 3)");
    const auto favourites = world.load<FavouritesTableViewController>();
    const auto history = world.load<HistoryTableViewController>();
    const auto favouriteReloads = world.table(*favourites).reloads;

    auto remove = favourites->trailingSwipeActions({0, 0}).at(0);
    EXPECT_EQ(remove.style, platform::ActionStyle::Destructive);
    EXPECT_EQ(remove.title, "action.favourite.remove");
    EXPECT_EQ(remove.backgroundColor, std::nullopt);
    remove.handler([&](bool) { EXPECT_EQ(world.count("favourite"), 2) << "completed first"; });

    EXPECT_EQ(world.count("favourite WHERE verbid = 3"), 0);
    EXPECT_EQ(favourites->verbs.size(), 2U);
    EXPECT_EQ(world.table(*favourites).reloads, favouriteReloads) << "its own news";
    EXPECT_EQ(world.posted["VerbFavouriteToggled"], 1);

    EXPECT_EQ(history->trailingSwipeActions({0, 1}).at(0).title, "action.remove");
    history->trailingSwipeActions({0, 1}).at(0).handler([](bool) {});
    EXPECT_EQ(world.count("history"), 1) << "every row of the verb goes";
    EXPECT_EQ(world.posted["VerbFavouriteToggled"], 1);
}

TEST_F(RemovableLists, AFailedRemovalIsALogLine)
{
    world.execute("INSERT INTO favourite(verbid) VALUES (3)");
    world.execute("INSERT INTO history(verbid, timestamp) VALUES (3, 1)");
    const auto favourites = world.load<FavouritesTableViewController>();
    const auto history = world.load<HistoryTableViewController>();
    auto removeFavourite = favourites->trailingSwipeActions({0, 0}).at(0);
    auto removeView = history->trailingSwipeActions({0, 0}).at(0);
    world.execute("DROP TABLE favourite");
    world.execute("DROP TABLE history");

    removeView.handler([](bool) {});
    removeFavourite.handler([](bool) {});

    ASSERT_GE(world.crashReporter.lines.size(), 2U);
    EXPECT_EQ(world.crashReporter.lines[0],
              "An error occurred when removing the item from history: no such table: history (1)");
    EXPECT_EQ(world.crashReporter.lines[1],
              "An error occurred when removing the favourite: no such table: favourite (1)");
}

TEST_F(RemovableLists, WithoutAQueueALoadNeverEnds)
{
    FavouritesTableViewController favourites{world.services()};
    favourites.reloadFavourites();
    favourites.queue = world.queue.get();
    world.execute("INSERT INTO favourite(verbid) VALUES (3)");

    favourites.reloadFavourites();

    EXPECT_TRUE(favourites.isReloading);
    EXPECT_TRUE(favourites.verbs.empty());
}

} // namespace
} // namespace lumora
