// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lists/history_table_view_controller.h"

namespace lumora::lists {

void HistoryTableViewController::viewDidLoad()
{
    RemovableVerbListController::viewDidLoad();
    const auto reloadOn = [this](std::string_view name) {
        return services().notifications.addObserver(
            name, [this](const platform::Notification&) { reloadHistory(); });
    };
    favouriteToggled_ = reloadOn("VerbFavouriteToggled");
    verbViewed_ = reloadOn("VerbViewed");
    refreshHistory_ = reloadOn("RefreshHistory");
    installEmptyState("history.empty");
    reloadHistory();
}

void HistoryTableViewController::reloadHistory()
{
    reload("SELECT distinct verb._id, english, italian, portuguese, german, spanish, french, "
           "dutch, favourite._id as favourite_available\n"
           "FROM history INNER JOIN verb ON history.verbid = verb._id LEFT OUTER JOIN favourite "
           "ON history.verbid = favourite.verbid\n"
           "ORDER BY timestamp DESC");
}

RemovableVerbListController::RemoveAction HistoryTableViewController::removeAction() const
{
    return {"action.remove", "DELETE FROM history WHERE history.verbid = ?",
            "An error occurred when removing the item from history: %@ (%d)"};
}

} // namespace lumora::lists
