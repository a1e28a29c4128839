// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/verb.h"
#include "platform/form_search/form_search.h"
#include "platform/screens/table_view_controller.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lumora::platform {
class DatabaseQueue;
}

namespace lumora::lists {

/// Hears which result was chosen.
class SearchResultsTableViewControllerDelegate {
public:
    virtual ~SearchResultsTableViewControllerDelegate() = default;
    virtual void didSelectSearchResult(const data::VerbPtr& verb) = 0;
    /// A long press on the result.
    virtual void didHoldSearchResult(const data::VerbPtr& verb) = 0;
};

/// The verbs that match the search text, replaced whole by every search. Each
/// search ends before the next key press is handled. GUI thread only.
class SearchResultsTableViewController final : public platform::TableViewController {
public:
    using TableViewController::TableViewController;

    /// Not owned; must outlive its last search.
    SearchResultsTableViewControllerDelegate* delegate = nullptr;
    /// The shared queue. Not owned.
    platform::DatabaseQueue* queue = nullptr;
    /// The last text searched for, with plain apostrophes.
    std::string query;
    std::vector<data::VerbPtr> verbs;

    void search(std::string_view text);
    /// Reads what a search through the forms needs, so that the first key need not wait;
    /// nothing where the forms are not searched.
    void prepare();

    int numberOfSections() override;
    int numberOfRowsInSection(int section) override;
    platform::TableCell cellForRow(platform::IndexPath path) override;
    void didSelectRow(platform::IndexPath path) override;
    void rowHeld(platform::IndexPath path) override;
    bool canEditRow(platform::IndexPath path) override;
    /// The favourite action, as in the list of all verbs.
    std::vector<platform::SwipeAction> trailingSwipeActions(platform::IndexPath path) override;

    /// The row that shows the verb now; none when no row does.
    std::optional<platform::IndexPath> pathOfVerb(std::int64_t id) const;

private:
    const data::VerbPtr& verbAt(platform::IndexPath path) const;

    platform::FormSearch formSearch_;
};

} // namespace lumora::lists
