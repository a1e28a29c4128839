// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lists/search_results_table_view_controller.h"
#include "terminal/arguments.h"
#include "terminal/commands.h"
#include "terminal/lookup_command.h"
#include "terminal/output.h"
#include "terminal/session.h"
#include "text/text.h"

#include <algorithm>
#include <cerrno>

namespace lumora::terminal {

namespace {

void printRows(const std::vector<TextRow>& rows, const Output& output)
{
    constexpr std::size_t kGap = 2;

    std::size_t width = 0;
    for (const auto& row : rows) {
        width = std::max(width, text::columns(row.text));
    }
    for (const auto& row : rows) {
        const auto gap = output.isTerminal()
                             ? std::string(width - text::columns(row.text) + kGap, ' ')
                             : std::string{'\t'};
        output.stream << row.text << gap << row.detailText << '\n';
    }
}

/// Tells of a verb that the text is surely a form of, when the list does not
/// begin with it. A hint may fail: the list is what was asked for.
void hint(Session& session, const std::string& text, const std::vector<data::VerbPtr>& verbs,
          const Output& output)
{
    const auto readings = TextReader{session}.verbsOfForm(text);
    if (readings && !readings->empty() &&
        (verbs.empty() || verbs.front()->id != readings->front().verb)) {
        tell(inQuotes(text) + " is a form of " + namesOf(*readings), output.errors);
    }
}

} // namespace

platform::Result<void> search(Session& session, const Arguments& arguments, const Output& output)
{
    lists::SearchResultsTableViewController results{session.services()};
    results.queue = &session.queue();
    results.search(arguments.text);
    if (auto checked = session.check(); !checked) {
        return checked;
    }
    hint(session, arguments.text, results.verbs, output);
    if (results.verbs.empty()) {
        return tl::unexpected(
            platform::Error{"nothing found for " + inQuotes(arguments.text), ENOENT});
    }
    for (const auto& section : TerminalTableView::of(results.tableView()).sections()) {
        printRows(section.rows, output);
    }
    return {};
}

} // namespace lumora::terminal
