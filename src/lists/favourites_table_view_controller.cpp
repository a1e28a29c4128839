// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lists/favourites_table_view_controller.h"

#include "lists/sort_column.h"
#include "platform/machine/analytics.h"

#include <string>

namespace lumora::lists {

void FavouritesTableViewController::viewDidLoad()
{
    RemovableVerbListController::viewDidLoad();
    favouriteToggled_ = data::observe<data::VerbFavouriteToggled>(
        services().notifications, [this](const auto& news) { verbFavouriteToggled(news); });
    installEmptyState("favourites.empty");
    reloadFavourites();
}

void FavouritesTableViewController::viewDidAppear()
{
    services().analytics.logEvent("favourites_list", {});
    isVisible = true;
}

void FavouritesTableViewController::viewDidDisappear()
{
    isVisible = false;
}

void FavouritesTableViewController::verbFavouriteToggled(const data::VerbFavouriteToggled& news)
{
    if (dynamic_cast<const FavouritesTableViewController*>(news.sender) == nullptr) {
        reloadFavourites();
    }
}

void FavouritesTableViewController::reloadFavourites()
{
    std::string statement =
        "SELECT distinct verb._id, english, italian, portuguese, german, spanish, french, dutch, "
        "favourite._id as favourite_available\n"
        "FROM favourite INNER JOIN verb ON favourite.verbid = verb._id\n"
        "ORDER BY ";
    statement += listSortColumn(services().settings, services().device);
    statement += " ASC";
    reload(statement);
}

RemovableVerbListController::RemoveAction FavouritesTableViewController::removeAction() const
{
    return {"action.favourite.remove", "DELETE FROM favourite WHERE favourite.verbid = ?",
            "An error occurred when removing the favourite: %@ (%d)"};
}

void FavouritesTableViewController::verbRemoved(const data::VerbPtr& verb)
{
    data::post(services().notifications, data::VerbFavouriteToggled{this, verb, {}});
}

} // namespace lumora::lists
