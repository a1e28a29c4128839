// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/news.h"
#include "lists/interstitial_table_view_controller.h"
#include "lists/verb_filter.h"
#include "platform/base/notification_center.h"

#include <map>
#include <string>
#include <vector>

namespace lumora::platform {
class Database;
}

namespace lumora::lists {

/// Every verb in one table, a section for each first letter of the column that
/// the list is sorted by.
///
/// Rebuilt whole by reloadVerbs(); a favourite changed elsewhere reaches it
/// through "VerbFavouriteToggled". After a failed query the sections of the
/// load before may stand without rows.
class VerbListTableViewController final : public InterstitialTableViewController {
public:
    using InterstitialTableViewController::InterstitialTableViewController;

    /// By index letter, in the order of the query.
    std::map<std::string, std::vector<data::VerbPtr>, std::less<>> verbs;
    /// The index letters in section order.
    std::vector<std::string> keys;

    /// Which of the verbs show; the members above hold all of them.
    const VerbFilter& filter() const { return filter_; }
    void choose(VerbChip chip, bool chosen);

    void reloadVerbs();

    void viewWillAppear() override;
    void viewDidAppear() override;
    void viewDidDisappear() override;

    int numberOfSections() override;
    int numberOfRowsInSection(int section) override;
    std::optional<std::string> titleForHeaderInSection(int section) override;
    std::vector<std::string> sectionIndexTitles() override;
    int sectionForSectionIndexTitle(std::string_view title, int index) override;
    platform::TableCell cellForRow(platform::IndexPath path) override;
    bool showsRow(platform::IndexPath path) override;
    bool canEditRow(platform::IndexPath path) override;
    std::vector<platform::SwipeAction> trailingSwipeActions(platform::IndexPath path) override;

protected:
    void viewDidLoad() override;
    data::VerbPtr verbAt(platform::IndexPath path) const override;

private:
    void verbFavouriteToggled(const data::VerbFavouriteToggled& news);
    void readVerbs(platform::DatabaseQueue& database, std::string_view sortColumn);
    const std::string& keyOfSection(int section) const;

    void loadFilter(platform::Database& connection);

    VerbFilter filter_{services().viewMemory};
    platform::NotificationCenter::Subscription favouriteToggled_;
};

} // namespace lumora::lists
