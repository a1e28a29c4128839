// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/verb.h"
#include "detail/verb_sequence.h"
#include "platform/screens/table_view_controller.h"

#include <cstdint>
#include <optional>

namespace lumora::platform {
class DatabaseQueue;
}

namespace lumora::lists {

/// The common base of the three list tabs: a table of verbs whose rows lead to
/// the detail screen.
class InterstitialTableViewController : public platform::TableViewController {
public:
    using TableViewController::TableViewController;

    /// The shared queue; null until the home screen fills it. Not owned.
    platform::DatabaseQueue* queue = nullptr;
    /// Between having appeared and having disappeared.
    bool isVisible = false;

    /// Takes the "showDetail" step that the row's cell is wired to.
    void rowTapped(platform::IndexPath path) override;
    void didSelectRow(platform::IndexPath path) override;
    /// Previews what a tap would show.
    void rowHeld(platform::IndexPath path) override;
    bool shouldPerformSegue(std::string_view identifier) override;
    void prepareForSegue(const platform::Segue& segue) override;

    /// The row that shows the verb now; none when no row does.
    std::optional<platform::IndexPath> pathOfVerb(std::int64_t id);

protected:
    void viewDidLoad() override;

    /// The verb of a row; null where the list has none.
    virtual data::VerbPtr verbAt(platform::IndexPath path) const = 0;

private:
    /// The list as it stands, seen from one of its rows.
    detail::VerbSequence sequenceFrom(platform::IndexPath path);
};

} // namespace lumora::lists
