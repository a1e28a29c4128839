// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lists/search_results_table_view_controller.h"

#include "data/verb_reader.h"
#include "lists/favourite_action.h"
#include "lists/search_query.h"
#include "lists/verb_cell.h"
#include "platform/machine/crash_reporter.h"
#include "platform/storage/database_queue.h"

#include <algorithm>
#include <cstdlib>

namespace lumora::lists {

void SearchResultsTableViewController::search(std::string_view text)
{
    const auto statement = makeSearchQuery(text, services().settings, services().device);
    query = statement.text;
    verbs.clear();
    if (queue == nullptr) {
        return;
    }
    queue->inDatabase([&](platform::Database& connection) {
        const std::vector<platform::SqlValue> values(
            static_cast<std::size_t>(statement.placeholders), statement.pattern);
        const auto read = [&](platform::Result<platform::ResultSet>& rows) {
            if (!data::readVerbs(rows, data::VerbReader::Spellings::Plain, verbs)) {
                services().crashReporter.logWithFormat(
                    "An error occurred when performing search: %@ (%d)",
                    {connection.lastErrorMessage(), connection.lastErrorCode()});
            }
        };
        if (statement.searchesForms) {
            formSearch_.executeQuery(connection, statement.statement, values, read);
        } else {
            auto rows = connection.executeQuery(statement.statement, values);
            read(rows);
        }
        distinguishHomographs(verbs, connection, services().settings, services().device,
                              services().crashReporter);
        tableView().reloadData();
    });
}

void SearchResultsTableViewController::prepare()
{
    if (queue != nullptr &&
        makeSearchQuery({}, services().settings, services().device).searchesForms) {
        queue->inDatabase([this](platform::Database& connection) {
            // A search without it is slower and finds the same.
            static_cast<void>(formSearch_.prepare(connection));
        });
    }
}

int SearchResultsTableViewController::numberOfSections()
{
    return 1;
}

int SearchResultsTableViewController::numberOfRowsInSection(int /*section*/)
{
    return static_cast<int>(verbs.size());
}

const data::VerbPtr& SearchResultsTableViewController::verbAt(platform::IndexPath path) const
{
    if (path.row < 0 || static_cast<std::size_t>(path.row) >= verbs.size()) {
        std::abort();
    }
    return verbs[static_cast<std::size_t>(path.row)];
}

platform::TableCell SearchResultsTableViewController::cellForRow(platform::IndexPath path)
{
    return verbCell(*verbAt(path), services().settings, services().device);
}

void SearchResultsTableViewController::didSelectRow(platform::IndexPath path)
{
    if (const auto selected = tableView().indexPathForSelectedRow()) {
        tableView().deselectRow(*selected);
    }
    const auto verb = verbAt(path);
    if (delegate != nullptr) {
        delegate->didSelectSearchResult(verb);
    }
}

void SearchResultsTableViewController::rowHeld(platform::IndexPath path)
{
    if (delegate != nullptr) {
        delegate->didHoldSearchResult(verbAt(path));
    }
}

bool SearchResultsTableViewController::canEditRow(platform::IndexPath /*path*/)
{
    return true;
}

std::vector<platform::SwipeAction>
SearchResultsTableViewController::trailingSwipeActions(platform::IndexPath path)
{
    return {favouriteAction(*this, queue, verbAt(path), path, services().bundle,
                            services().notifications, services().console)};
}

std::optional<platform::IndexPath>
SearchResultsTableViewController::pathOfVerb(std::int64_t id) const
{
    const auto found = std::find_if(verbs.begin(), verbs.end(),
                                    [id](const data::VerbPtr& verb) { return verb->id == id; });
    if (found == verbs.end()) {
        return std::nullopt;
    }
    return platform::IndexPath{0, static_cast<int>(found - verbs.begin())};
}

} // namespace lumora::lists
