// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "navigation/navigation_drawer_table_table_view_controller.h"

#include "platform/machine/bundle.h"
#include "platform/machine/url_opener.h"
#include "platform/screens/navigation_controller.h"
#include "platform/screens/presenter.h"

#include <iterator>
#include <ostream>

namespace lumora::navigation {

namespace {

struct Destination {
    const char* image;
    const char* labelKey;
    /// What the home screen does once the drawer has gone; null for the
    /// privacy page, which opens outside.
    void (HomeViewControllerDelegate::*operation)();
};

constexpr Destination kDestinations[] = {
    {"IconSettings", "options.button", &HomeViewControllerDelegate::showOptions},
    {"IconMoreApps", "moreapps", &HomeViewControllerDelegate::showMoreApps},
    {"IconContact", "contact", &HomeViewControllerDelegate::contactSupport},
    {"IconPrivacy", "privacy", nullptr},
};

} // namespace

int NavigationDrawerTableTableViewController::numberOfSections()
{
    return 2;
}

int NavigationDrawerTableTableViewController::numberOfRowsInSection(int section)
{
    return section == 1 ? static_cast<int>(std::size(kDestinations)) : 0;
}

platform::TableCell NavigationDrawerTableTableViewController::cellForRow(platform::IndexPath path)
{
    platform::TableCell cell;
    cell.reuseIdentifier = "Cell";
    if (path.row >= 0 && path.row < static_cast<int>(std::size(kDestinations))) {
        const auto& destination = kDestinations[path.row];
        cell.image = destination.image;
        cell.text = localizedString(services().bundle, destination.labelKey);
    }
    return cell;
}

void NavigationDrawerTableTableViewController::didSelectRow(platform::IndexPath path)
{
    tableView().deselectRow(path);
    auto* drawer = dynamic_cast<platform::SideMenuNavigationController*>(navigationController());
    if (drawer == nullptr) {
        services().console << "Unable to get navigation controller" << std::endl;
        return;
    }
    if (delegate == nullptr) {
        return;
    }
    if (path.row < 0 || path.row >= static_cast<int>(std::size(kDestinations))) {
        services().console << "Navigation option not available" << std::endl;
        return;
    }
    const auto operation = kDestinations[path.row].operation;
    if (operation == nullptr) {
        services().urlOpener.open(localizedString(services().bundle, "privacy.url"));
        services().presenter.dismiss(*drawer, nullptr);
        return;
    }
    // The drawer is gone by then, and this with it.
    services().presenter.dismiss(*drawer, [home = delegate, operation] { (home->*operation)(); });
}

} // namespace lumora::navigation
