// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/main_storyboard.h"

#include "detail/verb_detail_table_view_controller.h"
#include "lists/favourites_table_view_controller.h"
#include "lists/history_table_view_controller.h"
#include "lists/search_results_table_view_controller.h"
#include "lists/verb_list_table_view_controller.h"
#include "navigation/home_view_controller.h"
#include "navigation/more_apps_table_view_controller.h"
#include "navigation/navigation_drawer_table_table_view_controller.h"
#include "navigation/options_table_view_controller.h"
#include "platform/screens/navigation_controller.h"
#include "platform/screens/split_view_controller.h"

#include <cstdio>
#include <cstdlib>
#include <string>

namespace lumora::app {

using platform::NavigationController;

namespace {

[[noreturn]] void stopUnknown(std::string_view identifier)
{
    std::fprintf(stderr, "lumora: no screen is called %s\n", std::string{identifier}.c_str());
    std::abort();
}

} // namespace

void MainStoryboard::setServices(const platform::Services& services)
{
    services_ = &services;
}

std::shared_ptr<platform::SplitViewController> MainStoryboard::instantiateInitialViewController()
{
    auto home = std::make_shared<NavigationController>(
        std::make_shared<navigation::HomeViewController>(*services_));
    return std::make_shared<platform::SplitViewController>(
        std::move(home), instantiateDestination(platform::kShowDetailSegue));
}

std::shared_ptr<platform::ViewController>
MainStoryboard::instantiateViewController(std::string_view identifier)
{
    if (identifier == platform::kVerbListScreen) {
        return std::make_shared<lists::VerbListTableViewController>(*services_);
    }
    if (identifier == platform::kFavouritesScreen) {
        return std::make_shared<lists::FavouritesTableViewController>(*services_);
    }
    if (identifier == platform::kHistoryScreen) {
        return std::make_shared<lists::HistoryTableViewController>(*services_);
    }
    if (identifier == platform::kSearchResultsScreen) {
        return std::make_shared<NavigationController>(
            std::make_shared<lists::SearchResultsTableViewController>(*services_));
    }
    stopUnknown(identifier);
}

std::shared_ptr<platform::ViewController>
MainStoryboard::instantiateDestination(std::string_view segueIdentifier)
{
    if (segueIdentifier == platform::kShowDetailSegue ||
        segueIdentifier == platform::kShowSearchResultSegue) {
        return std::make_shared<NavigationController>(
            std::make_shared<detail::VerbDetailTableViewController>(*services_));
    }
    if (segueIdentifier == platform::kNavigationSegue) {
        return std::make_shared<platform::SideMenuNavigationController>(
            std::make_shared<navigation::NavigationDrawerTableTableViewController>(*services_));
    }
    if (segueIdentifier == platform::kOptionsSegue) {
        return std::make_shared<NavigationController>(
            std::make_shared<navigation::OptionsTableViewController>(*services_));
    }
    if (segueIdentifier == platform::kMoreAppsSegue) {
        return std::make_shared<NavigationController>(
            std::make_shared<navigation::MoreAppsTableViewController>(*services_));
    }
    stopUnknown(segueIdentifier);
}

platform::SegueStyle MainStoryboard::segueStyle(std::string_view segueIdentifier) const
{
    if (segueIdentifier == platform::kNavigationSegue) {
        return platform::SegueStyle::SideMenu;
    }
    if (segueIdentifier == platform::kOptionsSegue || segueIdentifier == platform::kMoreAppsSegue) {
        return platform::SegueStyle::PresentModally;
    }
    return platform::SegueStyle::ShowDetail;
}

} // namespace lumora::app
