// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lists/removable_verb_list_controller.h"

#include "data/verb_reader.h"
#include "lists/verb_cell.h"
#include "platform/machine/bundle.h"
#include "platform/machine/crash_reporter.h"
#include "platform/storage/database_queue.h"

#include <cstdlib>

namespace lumora::lists {

void RemovableVerbListController::installEmptyState(std::string_view textKey)
{
    backgroundView.text = platform::localizedString(services().bundle, textKey);
    tableView().setBackgroundView(backgroundView);
}

void RemovableVerbListController::reload(const std::string& statement)
{
    if (isReloading) {
        return;
    }
    isReloading = true;
    verbs.clear();
    if (queue == nullptr) {
        return;
    }
    queue->inDatabase([&](platform::Database& connection) {
        auto rows = connection.executeQuery(statement, {});
        if (!data::readVerbs(rows, data::VerbReader::Spellings::Plain, verbs)) {
            services().crashReporter.logWithFormat(
                "An error occurred when reading list of verbs: %@ (%d)",
                {connection.lastErrorMessage(), connection.lastErrorCode()});
        }
        distinguishHomographs(verbs, connection, services().settings, services().device,
                              services().crashReporter);
        connection.close();
        tableView().reloadData();
        isReloading = false;
    });
}

int RemovableVerbListController::numberOfSections()
{
    return 1;
}

int RemovableVerbListController::numberOfRowsInSection(int /*section*/)
{
    tableView().setSeparatorStyle(verbs.empty() ? platform::SeparatorStyle::None
                                                : platform::SeparatorStyle::SingleLine);
    tableView().setBackgroundViewHidden(!verbs.empty());
    return static_cast<int>(verbs.size());
}

data::VerbPtr RemovableVerbListController::verbAt(platform::IndexPath path) const
{
    if (path.row < 0 || static_cast<std::size_t>(path.row) >= verbs.size()) {
        std::abort();
    }
    return verbs[static_cast<std::size_t>(path.row)];
}

platform::TableCell RemovableVerbListController::cellForRow(platform::IndexPath path)
{
    return verbCell(*verbAt(path), services().settings, services().device);
}

bool RemovableVerbListController::canEditRow(platform::IndexPath /*path*/)
{
    return true;
}

std::vector<platform::SwipeAction>
RemovableVerbListController::trailingSwipeActions(platform::IndexPath path)
{
    platform::SwipeAction action;
    action.style = platform::ActionStyle::Destructive;
    action.title = platform::localizedString(services().bundle, removeAction().titleKey);
    action.image = "remove";
    action.handler = [this, verb = verbAt(path)](const std::function<void(bool)>& completed) {
        completed(true);
        removeVerb(verb);
    };
    return {action};
}

void RemovableVerbListController::removeVerb(const data::VerbPtr& verb)
{
    if (queue != nullptr) {
        queue->inDatabase([&](platform::Database& connection) {
            if (connection.executeUpdate(removeAction().statement, {verb->id})) {
                connection.close();
                return;
            }
            services().crashReporter.logWithFormat(
                removeAction().failureFormat,
                {connection.lastErrorMessage(), connection.lastErrorCode()});
        });
    }
    verbRemoved(verb);
    if (verbs.empty()) {
        tableView().reloadData();
    }
}

} // namespace lumora::lists
