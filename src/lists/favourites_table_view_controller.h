// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/news.h"
#include "lists/removable_verb_list_controller.h"
#include "platform/base/notification_center.h"

namespace lumora::lists {

/// The verbs marked as favourites, in the order of the sort column.
class FavouritesTableViewController final : public RemovableVerbListController {
public:
    using RemovableVerbListController::RemovableVerbListController;

    void reloadFavourites();

    void viewDidAppear() override;
    void viewDidDisappear() override;

protected:
    void viewDidLoad() override;
    RemoveAction removeAction() const override;
    void verbRemoved(const data::VerbPtr& verb) override;

private:
    void verbFavouriteToggled(const data::VerbFavouriteToggled& news);

    platform::NotificationCenter::Subscription favouriteToggled_;
};

} // namespace lumora::lists
