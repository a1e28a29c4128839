// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/screens/table_screen.h"

#include "lists/interstitial_table_view_controller.h"
#include "lists/search_results_table_view_controller.h"

#include <optional>
#include <utility>

namespace lumora::qt {

TableScreen::TableScreen(const std::shared_ptr<platform::TableViewController>& controller,
                         const QString& pageName)
    : TableScreen{controller, controller->tableView(), pageName}
{}

TableScreen::TableScreen(std::shared_ptr<platform::ViewController> controller,
                         platform::TableView& table, const QString& pageName)
    : Screen{std::move(controller), pageName}, table_{dynamic_cast<QtTableView&>(table)}
{}

int TableScreen::rowOfVerb(int id) const
{
    std::optional<platform::IndexPath> path;
    if (auto* const list =
            dynamic_cast<lists::InterstitialTableViewController*>(controller().get())) {
        path = list->pathOfVerb(id);
    } else if (const auto* const results =
                   dynamic_cast<lists::SearchResultsTableViewController*>(controller().get())) {
        path = results->pathOfVerb(id);
    }
    return path ? table_.model()->listRow(*path) : -1;
}

} // namespace lumora::qt
