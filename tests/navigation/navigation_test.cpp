// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "build_settings.h"
#include "navigation/more_apps_table_view_controller.h"
#include "navigation/navigation_drawer_table_table_view_controller.h"
#include "platform/screens/navigation_controller.h"
#include "support/world.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

namespace lumora {
namespace {

using navigation::MoreAppsTableViewController;
using navigation::NavigationDrawerTableTableViewController;
using support::World;

class Home final : public navigation::HomeViewControllerDelegate {
public:
    void showOptions() override { asked += "options "; }
    void showMoreApps() override { asked += "moreapps "; }
    void contactSupport() override { asked += "contact "; }

    std::string asked;
};

class Drawer : public testing::Test {
protected:
    World world;
    Home home;
    std::shared_ptr<NavigationDrawerTableTableViewController> drawer =
        std::make_shared<NavigationDrawerTableTableViewController>(world.services());
};

TEST_F(Drawer, TheNewScreenComesAfterTheDrawerHasGone)
{
    const platform::SideMenuNavigationController menu{drawer};
    drawer->delegate = &home;
    world.presenter.holdsDismissals = true;
    const std::string asked[] = {"options ", "moreapps ", "contact ", ""};
    EXPECT_EQ(drawer->numberOfRowsInSection(0), 0);
    ASSERT_EQ(drawer->numberOfRowsInSection(1), std::ssize(asked));
    for (int row = 0; row < std::ssize(asked); ++row) {
        SCOPED_TRACE(row);
        home.asked.clear();
        drawer->didSelectRow({1, row});
        EXPECT_EQ(world.presenter.dismissed.back(), &menu);
        EXPECT_EQ(home.asked, "");
        EXPECT_EQ(world.urlOpener.opened.size(), row == 3 ? 1U : 0U);
        world.presenter.finishDismissals();
        EXPECT_EQ(home.asked, asked[row]);
    }
    EXPECT_EQ(world.urlOpener.opened.back(), "privacy.url");
    EXPECT_EQ(world.presenter.dismissed.size(), 4U);
    EXPECT_EQ(world.table(*drawer).deselectedRows.size(), 4U);
}

TEST_F(Drawer, StaysOpenWhereItCannotGo)
{
    drawer->delegate = &home;
    {
        const platform::NavigationController plain{drawer};
        drawer->didSelectRow({1, 0});
    }
    drawer->didSelectRow({1, 0});
    const platform::SideMenuNavigationController menu{drawer};
    drawer->didSelectRow({1, 4});
    EXPECT_EQ(world.console.str(), "Unable to get navigation controller\n"
                                   "Unable to get navigation controller\n"
                                   "Navigation option not available\n");
    drawer->delegate = nullptr;
    drawer->didSelectRow({1, 0});
    drawer->didSelectRow({1, 3});

    EXPECT_TRUE(world.presenter.dismissed.empty());
    EXPECT_TRUE(world.urlOpener.opened.empty());
    EXPECT_EQ(home.asked, "");
    EXPECT_EQ(world.table(*drawer).deselectedRows.size(), 5U);
}

TEST(MoreApps, ListsTheCatalogueWithoutTheRunningApplication)
{
    World world;
    world.bundle.info["CFBundleIdentifier"] = "com.brindle.lumora";
    MoreAppsTableViewController apps{world.services()};
    apps.loadViewIfNeeded();

    EXPECT_EQ(apps.otherApps.size() + 1, navigation::ProductList{}.apps.size());
    EXPECT_EQ(apps.numberOfRowsInSection(0), std::ssize(apps.otherApps));
    for (const auto& product : apps.otherApps) {
        EXPECT_NE(product.at("bundle"), "com.brindle.lumora");
    }

    apps.navigationItem().rightBarButtons.at(0).action();
    EXPECT_EQ(world.presenter.dismissed, std::vector<platform::ViewController*>{&apps});
}

TEST(MoreApps, ATapOpensThePageInTheStoreOfTheUsersCountry)
{
    World world;
    MoreAppsTableViewController apps{world.services()};
    const std::string store{build::kStoreUrl};
    const std::string query = "?mt=8&uo=4&at=" + std::string{build::kStoreAffiliateToken};
    struct {
        navigation::Product product;
        const char* region;
        const char* selected;
        std::vector<std::string> opened;
    } const cases[] = {
        {{{"appid", "77"}, {"storedesc", "a-b"}}, "DE", "a-b", {store + "de/app/a-b/id77" + query}},
        {{{"appid", "77"}, {"storedesc", "a-b"}}, "", "a-b", {store + "us/app/a-b/id77" + query}},
        {{{"appid", "77"}}, "DE", "", {}},
        {{{"storedesc", "a-b"}}, "DE", "a-b", {}},
    };
    for (const auto& c : cases) {
        world.urlOpener.opened.clear();
        world.device.region = c.region;
        apps.otherApps = {c.product};
        apps.didSelectRow({0, 0});

        EXPECT_EQ(world.analytics.events.back(),
                  (support::RecordingAnalytics::Event{"more_apps", {{"select", c.selected}}}));
        EXPECT_EQ(world.urlOpener.opened, c.opened);
    }
}

} // namespace
} // namespace lumora
