// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/news.h"
#include "lists/removable_verb_list_controller.h"
#include "platform/base/notification_center.h"

namespace lumora::lists {

/// The verbs that were opened, the latest first. Recording them is the detail
/// screen's work.
class HistoryTableViewController final : public RemovableVerbListController {
public:
    using RemovableVerbListController::RemovableVerbListController;

    void reloadHistory();

protected:
    void viewDidLoad() override;
    RemoveAction removeAction() const override;

private:
    /// Also when this list changed the verb itself: the stars of all its rows follow.
    void verbFavouriteToggled(const data::VerbFavouriteToggled& /*news*/) { reloadHistory(); }
    void verbViewed(const data::VerbViewed& /*news*/) { reloadHistory(); }
    void refreshHistory(const data::RefreshHistory& /*news*/) { reloadHistory(); }

    platform::NotificationCenter::Subscription favouriteToggled_;
    platform::NotificationCenter::Subscription verbViewed_;
    platform::NotificationCenter::Subscription refreshHistory_;
};

} // namespace lumora::lists
