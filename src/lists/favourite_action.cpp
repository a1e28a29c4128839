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

void toggleFavourite(platform::TableViewController& list, platform::DatabaseQueue* queue,
                     const data::VerbPtr& verb, platform::IndexPath path,
                     platform::NotificationCenter& notifications, std::ostream& console)
{
    verb->isFavourite = !verb->isFavourite;
    list.tableView().reloadRow(path);
    if (queue == nullptr) {
        std::abort();
    }
    queue->inDatabase([&](platform::Database& connection) {
        data::updateFavourite(connection, *verb, console);
        connection.close();
    });
    data::post(notifications, data::VerbFavouriteToggled{&list, verb, {}});
}

} // namespace

platform::SwipeAction favouriteAction(platform::TableViewController& list,
                                      platform::DatabaseQueue* queue, const data::VerbPtr& verb,
                                      platform::IndexPath path, const platform::Bundle& bundle,
                                      platform::NotificationCenter& notifications,
                                      std::ostream& console)
{
    platform::SwipeAction action;
    const bool favourite = verb->isFavourite;
    action.title = platform::localizedString(bundle, favourite ? "action.favourite.remove"
                                                               : "action.favourite");
    action.backgroundColor = favourite ? platform::kRedColor : platform::kLightGrayColor;
    action.image = favourite ? "remove" : "favourite";
    action.handler = [&list, &notifications, &console, queue, verb,
                      path](const std::function<void(bool)>& completed) {
        toggleFavourite(list, queue, verb, path, notifications, console);
        completed(true);
    };
    return action;
}

} // namespace lumora::lists
