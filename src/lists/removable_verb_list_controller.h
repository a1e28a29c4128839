// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "lists/interstitial_table_view_controller.h"

#include <string_view>
#include <vector>

namespace lumora::lists {

/// What favourites and history share: one flat list read by one statement, a
/// centred text when it is empty, and a destructive swipe.
///
/// A swipe leaves `verbs` as it is: the view takes the row away, the list is
/// read again when it next has a reason.
class RemovableVerbListController : public InterstitialTableViewController {
public:
    using InterstitialTableViewController::InterstitialTableViewController;

    std::vector<data::VerbPtr> verbs;
    /// A load asked for while one is under way is dropped. Stays true after a
    /// load without a queue.
    bool isReloading = false;
    /// The empty state, installed as the table's background.
    platform::EmptyStateView backgroundView;

    int numberOfSections() override;
    /// Shows the empty state when the answer is 0, the separators otherwise.
    int numberOfRowsInSection(int section) override;
    platform::TableCell cellForRow(platform::IndexPath path) override;
    bool canEditRow(platform::IndexPath path) override;
    std::vector<platform::SwipeAction> trailingSwipeActions(platform::IndexPath path) override;

protected:
    /// What the swipe that removes a row says and does.
    struct RemoveAction {
        std::string_view titleKey;
        std::string_view statement;
        std::string_view failureFormat;
    };

    void installEmptyState(std::string_view textKey);
    void reload(const std::string& statement);
    data::VerbPtr verbAt(platform::IndexPath path) const override;

    virtual RemoveAction removeAction() const = 0;
    /// The verb's row has been deleted, or could not be.
    virtual void verbRemoved(const data::VerbPtr& /*verb*/) {}

private:
    void removeVerb(const data::VerbPtr& verb);
};

} // namespace lumora::lists
