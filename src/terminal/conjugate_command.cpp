// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "terminal/arguments.h"
#include "terminal/commands.h"
#include "terminal/loaded_verbs.h"
#include "terminal/output.h"
#include "terminal/session.h"
#include "text/text.h"

#include <algorithm>

namespace lumora::terminal {

namespace {

/// "je " and "j'": what stands before the form.
std::string lead(const std::string& pronoun)
{
    return pronoun.empty() || pronoun.ends_with('\'') ? pronoun : pronoun + ' ';
}

TextBlock tenseBlock(const std::string& title, const std::vector<TextRow>& rows)
{
    std::size_t leadWidth = 0;
    for (const auto& row : rows) {
        leadWidth = std::max(leadWidth, text::columns(lead(row.text)));
    }
    TextBlock block{title};
    for (const auto& row : rows) {
        const auto before = lead(row.text);
        block.push_back(std::string(leadWidth - text::columns(before), ' ') + before +
                        row.detailText);
    }
    return block;
}

void printMood(const std::string& verb, const std::string& mood,
               const std::vector<TextSection>& sections, const Output& output)
{
    std::vector<TextBlock> blocks;
    for (const auto& tense : sections) {
        // The translation, and the empty section after the other forms.
        if (!tense.title) {
            continue;
        }
        blocks.push_back(tenseBlock(*tense.title, tense.rows));
        for (const auto& row : tense.rows) {
            if (!output.isTerminal()) {
                output.stream << verb << '\t' << mood << '\t' << *tense.title << '\t' << row.text
                              << '\t' << row.detailText << '\n';
            }
        }
    }
    if (output.isTerminal()) {
        output.stream << mood << "\n\n";
        printBlocks(blocks, output);
    }
}

void printVerb(detail::VerbDetailTableViewController& screen, const Output& output)
{
    if (output.isTerminal()) {
        output.stream << screen.headerText() << "\n\n";
    }
    const auto moods = screen.verbTypeSegmentedControl.titles;
    for (std::size_t mood = 0; mood < moods.size(); ++mood) {
        screen.selectVerbTypes(static_cast<int>(mood));
        printMood(screen.selectedVerb->french, moods[mood],
                  TerminalTableView::of(*screen.tableView).sections(), output);
    }
}

} // namespace

platform::Result<void> conjugate(Session& session, const Arguments& arguments, const Output& output)
{
    const auto screens = loadedVerbs(session, arguments.text);
    if (!screens) {
        return tl::unexpected(screens.error());
    }
    bool first = true;
    for (const auto& screen : *screens) {
        // An empty line parts verbs in a pipe: homographs have the same name.
        if (!first && !output.isTerminal()) {
            output.stream << '\n';
        }
        first = false;
        printVerb(*screen, output);
    }
    return {};
}

} // namespace lumora::terminal
