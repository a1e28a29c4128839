// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lists/history_table_view_controller.h"

namespace lumora::lists {

void HistoryTableViewController::viewDidLoad()
{
    RemovableVerbListController::viewDidLoad();
    auto& center = services().notifications;
    favouriteToggled_ = data::observe<data::VerbFavouriteToggled>(
        center, [this](const auto& news) { verbFavouriteToggled(news); });
    verbViewed_ =
        data::observe<data::VerbViewed>(center, [this](const auto& news) { verbViewed(news); });
    refreshHistory_ = data::observe<data::RefreshHistory>(
        center, [this](const auto& news) { refreshHistory(news); });
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
