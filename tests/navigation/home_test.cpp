// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "navigation/home_view_controller.h"

#include "detail/verb_detail_table_view_controller.h"
#include "lists/favourites_table_view_controller.h"
#include "lists/history_table_view_controller.h"
#include "lists/verb_list_table_view_controller.h"
#include "platform/screens/navigation_controller.h"
#include "support/world.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using navigation::HomeViewController;
using navigation::Tab;
using support::World;

class Home : public testing::Test {
protected:
    std::vector<Tab> tabs() const
    {
        std::vector<Tab> tags;
        for (const auto& item : home->tabBar.items) {
            tags.push_back(item.tag);
        }
        return tags;
    }

    /// The screen on top of the stack that the last step led to.
    template <typename Controller>
    Controller& shown() const
    {
        auto& stack = dynamic_cast<platform::NavigationController&>(
            *world.presenter.segues.back().destination);
        return dynamic_cast<Controller&>(*stack.topViewController());
    }

    World world;
    std::shared_ptr<HomeViewController> home = world.load<HomeViewController>();
};

TEST_F(Home, ATabOpenEventShowsTheTabItNames)
{
    using Info = std::map<std::string, std::any, std::less<>>;
    const std::pair<Info, Tab> cases[] = {
        {{{"SelectedTab", std::string{"Favourites"}}}, Tab::Favourites},
        {{{"SelectedTab", std::string{"History"}}}, Tab::History},
        {{{"SelectedTab", std::string{"List"}}}, Tab::List},
        {{{"SelectedTab", std::string{"favourites"}}}, Tab::List},
        {{{"SelectedTab", 1}}, Tab::List},
        {{}, Tab::List},
    };
    for (const auto& [info, tab] : cases) {
        home->didSelectItem(Tab::History);
        home->searchTextChanged("aller");
        world.notifications.post({"TabOpenEvent", {}, info});
        EXPECT_EQ(home->tabBar.selectedItem, tab);
        EXPECT_EQ(home->searchBar.text, "") << "the results would cover the tab";
    }
}

TEST_F(Home, AHistoryThatIsSwitchedOffIsNotOpenedFromOutside)
{
    world.settings.setValue(false, "UseHistory");
    data::post(world.notifications, data::HistoryFeatureToggled{false});
    home->didSelectItem(Tab::Favourites);

    data::post(world.notifications, data::TabOpenEvent{"History"});

    EXPECT_EQ(home->tabBar.selectedItem, Tab::List);
    EXPECT_TRUE(dynamic_cast<lists::VerbListTableViewController*>(home->currentChild().get()));
}

TEST_F(Home, ChoosingATabEndsTheSearchEvenWhereItIsTheSame)
{
    for (const auto tab : {Tab::Favourites, Tab::Favourites, Tab::List}) {
        home->searchTextChanged("aller");
        home->focusSearchBar();
        home->didSelectItem(tab);
        EXPECT_EQ(home->searchBar.text, "");
        EXPECT_FALSE(home->searchBar.isFirstResponder);
    }
}

TEST_F(Home, MakesEachListOnceAndKeepsIt)
{
    const auto list = home->currentChild();
    EXPECT_TRUE(dynamic_cast<lists::VerbListTableViewController*>(list.get()));
    home->didSelectItem(Tab::Favourites);
    EXPECT_TRUE(dynamic_cast<lists::FavouritesTableViewController*>(home->currentChild().get()));
    home->didSelectItem(Tab::List);
    EXPECT_EQ(home->currentChild(), list);
}

TEST_F(Home, AnEmptySearchTextDoesNotReachTheResults)
{
    auto& results = *home->searchResultsController();
    home->searchTextChanged("aller");
    ASSERT_EQ(results.verbs.size(), 1U);
    home->searchTextChanged("");
    EXPECT_EQ(results.query, "aller");
    EXPECT_EQ(results.verbs.size(), 1U);
}

TEST_F(Home, TheResultsFollowAFavouriteAndTheOptions)
{
    auto& results = *home->searchResultsController();
    home->searchTextChanged("vais");
    ASSERT_TRUE(results.verbs.empty());
    world.settings.setValue(true, "IncludeConjugations");
    home->optionsClosed(false);
    EXPECT_TRUE(results.verbs.empty()) << "nothing has changed";
    home->optionsClosed(true);
    EXPECT_EQ(support::infinitives(results.verbs), std::vector<std::string>{"aller"});

    results.rowTapped({0, 0});
    home->searchTextChanged("vai");
    world.shownDetail()->loadViewIfNeeded();
    world.shownDetail()->favouriteBarButton.action();
    ASSERT_NE(results.verbs.at(0), world.shownDetail()->selectedVerb);
    EXPECT_EQ(results.cellForRow({0, 0}).image, "ic_favorite_list");

    home->searchTextChanged("");
    const int reloads = world.table(results).reloads;
    home->optionsClosed(true);
    data::post(world.notifications, data::VerbFavouriteToggled{});
    EXPECT_EQ(world.table(results).reloads, reloads) << "no text, no search";
}

TEST_F(Home, AResultOpensAsADetailScreen)
{
    home->searchTextChanged("être");
    home->searchBar.isFirstResponder = true;
    world.device.tablet = true;

    home->searchResultsController()->rowTapped({0, 0});

    const auto detail = world.shownDetail();
    ASSERT_TRUE(detail);
    EXPECT_EQ(detail->selectedVerb, home->selectedSearchResult);
    EXPECT_EQ(detail->selectedVerb->french, "être");
    EXPECT_FALSE(home->searchBar.isFirstResponder);
}

TEST_F(Home, TellsTheCrashReportTheOptions)
{
    world.device.languages = {"de-CH", "fr"};
    world.settings.setValue(std::string{"W"}, "SearchFrom");
    world.settings.setValue(std::int64_t{0}, "SortByLang");
    home->viewWillAppear();

    const std::map<std::string, platform::CustomValue, std::less<>> expected{
        {"IncludeEnglish", false},
        {"SearchFromStart", false},
        {"ShowTranslated", true},
        {"SortByLang", true},
        {"TranslationLanguage", std::string{}},
        {"Locale", std::string{"de-CH"}},
    };
    EXPECT_EQ(world.crashReporter.customValues, expected);
}

TEST_F(Home, WhatTheOptionsChangeShowsWhenTheyClose)
{
    int refreshes = 0;
    const auto subscription = world.notifications.addObserver(
        "RefreshConjugations", [&](const platform::Notification&) { ++refreshes; });
    auto& list = dynamic_cast<lists::VerbListTableViewController&>(*home->currentChild());
    const auto& table = world.table(list);
    const int reloads = table.reloads;
    home->showOptions();
    auto& options = shown<navigation::OptionsTableViewController>();
    EXPECT_EQ(options.queue, world.queue.get());
    options.loadViewIfNeeded();
    options.viewWillAppear();

    options.close();
    EXPECT_EQ(table.reloads, reloads);
    EXPECT_EQ(refreshes, 0);

    const std::vector withHistory{Tab::List, Tab::Favourites, Tab::History};
    EXPECT_EQ(tabs(), withHistory);
    EXPECT_EQ(list.verbs.begin()->second.front()->french, "aller");
    home->didSelectItem(Tab::Favourites);
    world.execute("INSERT INTO favourite(verbid) VALUES (1), (3)");
    auto& favourites = dynamic_cast<lists::FavouritesTableViewController&>(*home->currentChild());
    favourites.reloadFavourites();
    EXPECT_EQ(support::infinitives(favourites.verbs), (std::vector<std::string>{"aller", "avoir"}));
    home->didSelectItem(Tab::History);
    world.settings.setValue(std::string{"de"}, "translation_language");
    options.segmentChanged({0, 2}, 0);
    options.switchToggled({2, 0}, false);
    EXPECT_EQ(tabs(), (std::vector{Tab::List, Tab::Favourites}));
    EXPECT_EQ(home->tabBar.selectedItem, Tab::List);
    options.switchToggled({2, 0}, true);
    EXPECT_EQ(tabs(), withHistory);
    options.close();
    EXPECT_EQ(list.verbs.begin()->second.front()->french, "avoir") << "ärgern comes first";
    EXPECT_EQ(support::infinitives(favourites.verbs), (std::vector<std::string>{"avoir", "aller"}));
    EXPECT_EQ(refreshes, 1);
    EXPECT_EQ(world.crashReporter.customValues["SortByLang"], platform::CustomValue{false});
}

TEST_F(Home, TheMenuButtonLeadsThroughTheDrawer)
{
    home->navigationItem().leftBarButton.value().action();
    ASSERT_TRUE(dynamic_cast<platform::SideMenuNavigationController*>(
        world.presenter.segues.back().destination.get()));
    auto& drawer = shown<navigation::NavigationDrawerTableTableViewController>();
    drawer.didSelectRow({1, 0});
    EXPECT_EQ(world.presenter.segues.back().identifier, "Options");
    drawer.didSelectRow({1, 1});
    EXPECT_EQ(world.presenter.segues.back().identifier, "MoreApps");
    drawer.didSelectRow({1, 2});
    ASSERT_EQ(world.presenter.presentedScreens.size(), 1U);
    EXPECT_EQ(world.presenter.presentedScreens[0].on, home.get());
    world.mail.composers.back()->finish(platform::MailComposeResult::Sent);
    EXPECT_EQ(world.presenter.alerts.size(), 1U) << "the home screen keeps the sender";
}

} // namespace
} // namespace lumora
