// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lists/interstitial_table_view_controller.h"

#include "detail/verb_detail_table_view_controller.h"
#include "platform/screens/navigation_controller.h"
#include "platform/screens/presenter.h"
#include "platform/screens/split_view_controller.h"
#include "platform/screens/storyboard.h"

#include <utility>
#include <vector>

namespace lumora::lists {

void InterstitialTableViewController::viewDidLoad()
{
    TableViewController::viewDidLoad();
}

void InterstitialTableViewController::rowTapped(platform::IndexPath path)
{
    services().presenter.performSegue(*this, platform::kShowDetailSegue, path);
    didSelectRow(path);
}

void InterstitialTableViewController::didSelectRow(platform::IndexPath path)
{
    tableView().deselectRow(path);
}

void InterstitialTableViewController::rowHeld(platform::IndexPath path)
{
    services().presenter.previewSegue(*this, platform::kShowDetailSegue, path);
}

std::optional<platform::IndexPath> InterstitialTableViewController::pathOfVerb(std::int64_t id)
{
    for (int section = 0; section < numberOfSections(); ++section) {
        for (int row = 0; row < numberOfRowsInSection(section); ++row) {
            const auto verb = verbAt({section, row});
            if (verb && verb->id == id) {
                return platform::IndexPath{section, row};
            }
        }
    }
    return std::nullopt;
}

detail::VerbSequence InterstitialTableViewController::sequenceFrom(platform::IndexPath path)
{
    std::vector<data::VerbPtr> verbs;
    std::size_t at = 0;
    for (int section = 0; section < numberOfSections(); ++section) {
        const int rows = numberOfRowsInSection(section);
        for (int row = 0; row < rows; ++row) {
            const platform::IndexPath each{section, row};
            if (each == path) {
                at = verbs.size();
            } else if (!showsRow(each)) {
                continue;
            }
            verbs.push_back(verbAt(each));
        }
    }
    return {std::move(verbs), at};
}

bool InterstitialTableViewController::shouldPerformSegue(std::string_view /*identifier*/)
{
    return true;
}

void InterstitialTableViewController::prepareForSegue(const platform::Segue& segue)
{
    if (segue.identifier != platform::kShowDetailSegue) {
        return;
    }
    auto& stack = dynamic_cast<platform::NavigationController&>(segue.destination);
    auto& detail = dynamic_cast<detail::VerbDetailTableViewController&>(*stack.topViewController());

    detail.offerDisplayModeButton(splitViewController());
    const auto selected = tableView().indexPathForSelectedRow();
    const auto path = selected ? selected : segue.sender;
    if (path) {
        detail.selectedVerb = verbAt(*path);
        detail.sequence = sequenceFrom(*path);
    }
    detail.queue = queue;
}

} // namespace lumora::lists
