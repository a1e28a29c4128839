// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/view_controller.h"

#include <memory>
#include <optional>
#include <string_view>

namespace lumora::platform {

/// The names of the steps between screens, and of the screens that no step leads to.
inline constexpr std::string_view kShowDetailSegue = "showDetail";
inline constexpr std::string_view kShowSearchResultSegue = "showSearchResult";
inline constexpr std::string_view kNavigationSegue = "Navigation";
inline constexpr std::string_view kOptionsSegue = "Options";
inline constexpr std::string_view kMoreAppsSegue = "MoreApps";
inline constexpr std::string_view kVerbListScreen = "VerbListTableViewController";
inline constexpr std::string_view kFavouritesScreen = "FavouritesTableViewController";
inline constexpr std::string_view kHistoryScreen = "HistoryTableViewController";
inline constexpr std::string_view kSearchResultsScreen = "TableSearchResultsNavController";

/// How the screen at the end of a step comes into view.
enum class SegueStyle {
    /// In the detail pane, or on top of the list where there is one pane.
    ShowDetail,
    /// Over everything until it is dismissed.
    PresentModally,
    /// From the left edge, over part of what is there.
    SideMenu
};

/// Makes screens by the names above. An unknown name is a mistake in the program and
/// stops it.
class Storyboard {
public:
    virtual ~Storyboard() = default;
    virtual std::shared_ptr<ViewController>
    instantiateViewController(std::string_view identifier) = 0;
    /// The screen that a step from one screen leads to.
    virtual std::shared_ptr<ViewController>
    instantiateDestination(std::string_view segueIdentifier) = 0;
    virtual SegueStyle segueStyle(std::string_view segueIdentifier) const = 0;
};

/// Where a step from `source` leads, told what it needs; null where the source refuses.
std::shared_ptr<ViewController> prepareSegue(Storyboard& storyboard, ViewController& source,
                                             std::string_view identifier,
                                             std::optional<IndexPath> sender);

} // namespace lumora::platform
