// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lists/verb_list_table_view_controller.h"

#include "data/verb_reader.h"
#include "lists/favourite_action.h"
#include "lists/sort_column.h"
#include "lists/verb_cell.h"
#include "platform/machine/analytics.h"
#include "platform/machine/crash_reporter.h"
#include "platform/storage/database_queue.h"
#include "settings/view_memory.h"
#include "text/text.h"

#include <algorithm>
#include <cstdlib>
#include <ostream>

namespace lumora::lists {

namespace {

std::string listStatement(std::string_view sortColumn)
{
    std::string statement =
        "SELECT distinct verb._id, english, portuguese, simplified_portuguese, german, "
        "simplified_german, french, simplified_french, dutch, simplified_dutch, spanish, "
        "simplified_spanish, italian, simplified_italian, substr(";
    statement += sortColumn;
    statement += ", 1, 1) as index_letter, favourite._id as favourite_available\n"
                 "FROM verb LEFT OUTER JOIN favourite ON verb._id = favourite.verbid\n"
                 "ORDER BY ";
    statement += sortColumn;
    return statement;
}

} // namespace

void VerbListTableViewController::viewDidLoad()
{
    InterstitialTableViewController::viewDidLoad();
    favouriteToggled_ = data::observe<data::VerbFavouriteToggled>(
        services().notifications, [this](const auto& news) { verbFavouriteToggled(news); });
    reloadVerbs();
}

void VerbListTableViewController::viewWillAppear()
{
    if (const auto selected = tableView().indexPathForSelectedRow()) {
        tableView().deselectRow(*selected);
    }
}

void VerbListTableViewController::viewDidAppear()
{
    services().analytics.logEvent("verb_list", {});
    isVisible = true;
}

void VerbListTableViewController::viewDidDisappear()
{
    isVisible = false;
}

void VerbListTableViewController::verbFavouriteToggled(const data::VerbFavouriteToggled& news)
{
    // This list has already changed its own row.
    if (news.sender != this) {
        reloadVerbs();
    }
}

void VerbListTableViewController::reloadVerbs()
{
    const auto sortColumn = listSortColumn(services().settings, services().device);
    verbs.clear();
    if (queue == nullptr) {
        return;
    }
    readVerbs(*queue, sortColumn);
}

void VerbListTableViewController::readVerbs(platform::DatabaseQueue& database,
                                            std::string_view sortColumn)
{
    database.inDatabase([&](platform::Database& connection) {
        auto rows = connection.executeQuery(listStatement(sortColumn), {});
        const int indexLetter = rows ? rows->columnIndex("index_letter") : -1;
        std::vector<data::VerbPtr> all;
        // Neighbouring rows mostly share their letter.
        std::string lastLetter;
        std::vector<data::VerbPtr>* section = nullptr;
        const bool read =
            data::forEachVerb(rows, data::VerbReader::Spellings::WithSimplified,
                              [&](const data::VerbPtr& verb, const platform::ResultSet& row) {
                                  auto letter = row.stringForColumn(indexLetter);
                                  if (section == nullptr || letter != lastLetter) {
                                      section = &verbs[text::upperCased(letter)];
                                      lastLetter = std::move(letter);
                                  }
                                  section->push_back(verb);
                                  all.push_back(verb);
                              });
        if (!read) {
            services().crashReporter.logWithFormat(
                "An error occurred when reading list of verbs: %@ (%d)",
                {connection.lastErrorMessage(), connection.lastErrorCode()});
        }
        if (read || !verbs.empty()) {
            keys.clear();
            for (const auto& [letter, verbsOfLetter] : verbs) {
                keys.push_back(letter);
            }
            std::sort(keys.begin(), keys.end(), text::scalarLess);
        }
        distinguishHomographs(all, connection, services().settings, services().device,
                              services().crashReporter);
        loadFilter(connection);
        tableView().reloadData();
        connection.close();
    });
}

void VerbListTableViewController::loadFilter(platform::Database& connection)
{
    if (filter_.isAnyChosen() && !filter_.load(connection)) {
        services().crashReporter.logWithFormat(
            "An error occurred when reading which verbs are common: %@ (%d)",
            {connection.lastErrorMessage(), connection.lastErrorCode()});
    }
}

void VerbListTableViewController::choose(VerbChip chip, bool chosen)
{
    settings::reportIfNotSaved(filter_.choose(chip, chosen), "what the list shows",
                               services().console);
    if (queue != nullptr) {
        queue->inDatabase([this](platform::Database& connection) { loadFilter(connection); });
    }
    tableView().reloadData();
}

bool VerbListTableViewController::showsRow(platform::IndexPath path)
{
    if (!filter_.isAnyChosen()) {
        return true;
    }
    const auto verb = verbAt(path);
    return verb == nullptr || filter_.shows(verb->id);
}

const std::string& VerbListTableViewController::keyOfSection(int section) const
{
    if (section < 0 || static_cast<std::size_t>(section) >= keys.size()) {
        std::abort();
    }
    return keys[static_cast<std::size_t>(section)];
}

int VerbListTableViewController::numberOfSections()
{
    return static_cast<int>(keys.size());
}

int VerbListTableViewController::numberOfRowsInSection(int section)
{
    const auto found = verbs.find(keyOfSection(section));
    return found == verbs.end() ? 0 : static_cast<int>(found->second.size());
}

std::optional<std::string> VerbListTableViewController::titleForHeaderInSection(int section)
{
    return keyOfSection(section);
}

std::vector<std::string> VerbListTableViewController::sectionIndexTitles()
{
    return keys;
}

int VerbListTableViewController::sectionForSectionIndexTitle(std::string_view title, int /*index*/)
{
    const auto found = std::find(keys.begin(), keys.end(), title);
    return found == keys.end() ? -1 : static_cast<int>(found - keys.begin());
}

data::VerbPtr VerbListTableViewController::verbAt(platform::IndexPath path) const
{
    const auto found = verbs.find(keyOfSection(path.section));
    if (found == verbs.end() || path.row < 0 ||
        static_cast<std::size_t>(path.row) >= found->second.size()) {
        return nullptr;
    }
    return found->second[static_cast<std::size_t>(path.row)];
}

platform::TableCell VerbListTableViewController::cellForRow(platform::IndexPath path)
{
    const auto verb = verbAt(path);
    return verb ? verbCell(*verb, services().settings, services().device) : platform::TableCell{};
}

bool VerbListTableViewController::canEditRow(platform::IndexPath /*path*/)
{
    return true;
}

std::vector<platform::SwipeAction>
VerbListTableViewController::trailingSwipeActions(platform::IndexPath path)
{
    const auto verb = verbAt(path);
    if (!verb) {
        return {};
    }
    return {favouriteAction(*this, queue, verb, path, services().bundle, services().notifications,
                            services().console)};
}

} // namespace lumora::lists
