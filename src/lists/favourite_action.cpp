// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lists/favourite_action.h"

#include "data/favourite_statements.h"
#include "data/news.h"
#include "platform/machine/bundle.h"
#include "platform/screens/table_view_controller.h"
#include "platform/storage/database_queue.h"

#include <cstdlib>
#include <functional>

namespace lumora::lists {

namespace {

void toggleFavourite(platform::TableViewController& list, const platform::Services& services,
                     platform::DatabaseQueue* queue, const data::VerbPtr& verb,
                     platform::IndexPath path)
{
    verb->isFavourite = !verb->isFavourite;
    list.tableView().reloadRow(path);
    if (queue == nullptr) {
        std::abort();
    }
    queue->inDatabase([&](platform::Database& connection) {
        data::updateFavourite(connection, *verb, services.console);
        connection.close();
    });
    data::post(services.notifications, data::VerbFavouriteToggled{&list, verb, {}});
}

} // namespace

platform::SwipeAction favouriteAction(platform::TableViewController& list,
                                      const platform::Services& services,
                                      platform::DatabaseQueue* queue, const data::VerbPtr& verb,
                                      platform::IndexPath path)
{
    platform::SwipeAction action;
    const bool favourite = verb->isFavourite;
    action.title = platform::localizedString(services.bundle, favourite ? "action.favourite.remove"
                                                                        : "action.favourite");
    action.backgroundColor = favourite ? platform::kRedColor : platform::kLightGrayColor;
    action.image = favourite ? "remove" : "favourite";
    action.handler = [&list, &services, queue, verb,
                      path](const std::function<void(bool)>& completed) {
        toggleFavourite(list, services, queue, verb, path);
        completed(true);
    };
    return action;
}

} // namespace lumora::lists
