// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

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
    platform::NotificationCenter::Subscription favouriteToggled_;
    platform::NotificationCenter::Subscription verbViewed_;
    platform::NotificationCenter::Subscription refreshHistory_;
};

} // namespace lumora::lists
