// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/form_parts.h"
#include "data/tense_table.h"
#include "detail/row_sounds.h"
#include "terminal/arguments.h"
#include "terminal/commands.h"
#include "terminal/loaded_verbs.h"
#include "terminal/lookup_command.h"
#include "terminal/output.h"
#include "terminal/session.h"
#include "text/pronoun.h"
#include "text/text.h"

#include <algorithm>
#include <cerrno>
#include <iostream>
#include <optional>
#include <sstream>
#include <utility>

namespace lumora::terminal {

namespace {

TextBlock tenseBlock(const std::string& title, const std::vector<TextRow>& rows)
{
    std::size_t leadWidth = 0;
    std::size_t formWidth = 0;
    for (const auto& row : rows) {
        leadWidth = std::max(leadWidth, text::columns(text::beforeForm(row.text)));
        formWidth = std::max(formWidth, text::columns(row.detailText));
    }
    TextBlock block{title};
    for (const auto& row : rows) {
        const auto before = text::beforeForm(row.text);
        block.push_back(std::string(leadWidth - text::columns(before), ' ') + before +
                        row.detailText);
        if (row.ipa) {
            const auto gap = formWidth - text::columns(row.detailText) + 2;
            block.back() += std::string(gap, ' ') + *row.ipa;
        }
    }
    return block;
}

/// The form with "|" before each ending, as the divisions tell; a compound form
/// as it is.
std::string marked(const data::Conjugation& row, const data::FormDivisions& divisions)
{
    using Kind = data::FormParts::Kind;

    std::string text;
    for (const auto& part : divisions.parts(row)) {
        const bool cut = part.kind == Kind::Regular || part.kind == Kind::ChangedStem;
        text += text.empty() ? "" : ", ";
        text += cut ? part.stem + "|" + part.ending : part.text();
    }
    return text;
}

/// What is wanted of each row besides itself.
struct Additions {
    std::optional<data::FormDivisions> divisions;
    std::optional<detail::RowSounds> sounds;
};

/// Puts the additions into the rows of a mood, whose tenses follow a section with
/// the translation.
void add(const Additions& additions, std::vector<TextSection>& sections, const data::Verb& verb,
         int mood)
{
    std::size_t section = 1;
    for (const auto& block : data::blocksOfSegment(mood)) {
        if (section >= sections.size()) {
            return;
        }
        const auto& forms = verb.*block.tense.forms;
        auto& rows = sections[section++].rows;
        for (std::size_t row = 0; row < std::min(rows.size(), forms.size()); ++row) {
            if (additions.sounds) {
                rows[row].ipa = additions.sounds->ipa(*forms[row]);
            }
            if (additions.divisions) {
                rows[row].detailText = marked(*forms[row], *additions.divisions);
            }
        }
    }
}

/// How many forms were printed.
std::size_t printMood(const std::string& verb, const std::string& mood,
                      const std::vector<TextSection>& sections, const Output& output)
{
    std::size_t printed = 0;
    std::vector<TextBlock> blocks;
    for (const auto& tense : sections) {
        // The translation, and the empty section after the other forms.
        if (!tense.title) {
            continue;
        }
        printed += tense.rows.size();
        blocks.push_back(tenseBlock(*tense.title, tense.rows));
        for (const auto& row : tense.rows) {
            if (!output.isTerminal()) {
                output.stream << verb << '\t' << mood << '\t' << *tense.title << '\t' << row.text
                              << '\t' << row.detailText << (row.ipa ? "\t" + *row.ipa : "") << '\n';
            }
        }
    }
    if (output.isTerminal()) {
        output.stream << mood << "\n\n";
        printBlocks(blocks, output);
    }
    return printed;
}

void printVerb(Screen& screen, const Additions& additions, const Output& output)
{
    if (output.isTerminal()) {
        output.stream << screen.header().title << "\n\n";
    }
    const auto& verb = *screen.selectedVerb;
    std::size_t printed = 0;
    const auto moods = screen.verbTypeSegmentedControl.titles;
    for (std::size_t mood = 0; mood < moods.size(); ++mood) {
        const int segment = static_cast<int>(mood);
        screen.selectVerbTypes(segment);
        auto sections = TerminalTableView::of(*screen.tableView).sections();
        add(additions, sections, verb, segment);
        printed += printMood(verb.french, moods[mood], sections, output);
    }
    if (printed == 0) {
        tell("\"" + verb.french + "\" is used in the infinitive only", output.errors);
    }
}

/// Prints verbs one after another.
class Printer {
public:
    Printer(Session& session, const Arguments& arguments, const Output& output)
        : session_(session), arguments_(arguments), output_(output)
    {}

    platform::Result<void> print(const std::vector<data::VerbPtr>& verbs)
    {
        for (const auto& verb : verbs) {
            const auto screen = loadedScreen(session_, verb);
            if (!screen) {
                return tl::unexpected(screen.error());
            }
            const auto additions = additionsTo(*verb);
            if (!additions) {
                return tl::unexpected(additions.error());
            }
            std::ostringstream text;
            printVerb(**screen, *additions, {text, output_.errors, output_.width});
            // An empty line parts verbs in a pipe: homographs have the same name.
            if (!text.str().empty()) {
                const bool first = std::exchange(first_, false);
                output_.stream << (first || output_.isTerminal() ? "" : "\n") << text.str();
            }
        }
        return {};
    }

private:
    platform::Result<Additions> additionsTo(const data::Verb& verb)
    {
        Additions additions;
        if (arguments_.ipa) {
            additions.sounds.emplace(verb, &session_.queue());
        }
        if (!arguments_.stems) {
            return additions;
        }
        platform::Result<data::FormDivisions> read;
        session_.queue().inDatabase([&](platform::Database& database) {
            read = data::readFormDivisions(database, verb.id);
        });
        return read.map([&](data::FormDivisions& divisions) {
            additions.divisions = std::move(divisions);
            return std::move(additions);
        });
    }

    Session& session_;
    const Arguments& arguments_;
    const Output& output_;
    bool first_ = true;
};

/// Finds the verb that a person asks for: by its name, else by one of its forms.
class VerbFinder {
public:
    VerbFinder(VerbDirectory& directory, const Output& output)
        : directory_{directory}, output_{output}
    {}

    /// Tells when it was a form that named the verb. A form of several verbs is an
    /// error that names them.
    platform::Result<std::vector<data::VerbPtr>> find(const std::string& typed)
    {
        auto named = directory_.named(typed);
        if (named) {
            return named;
        }
        const auto readings = directory_.reader().verbsOfForm(typed);
        if (!readings || readings->empty()) {
            return readings ? named : tl::unexpected(readings.error());
        }
        if (readings->size() > 1) {
            return tl::unexpected(platform::Error{
                inQuotes(typed) + " is a form of " + namesOf(*readings) + "; which verb?", EINVAL});
        }
        tell(inQuotes(typed) + " is a form of " + readings->front().headword, output_.errors);
        return directory_.named(readings->front().headword);
    }

private:
    VerbDirectory& directory_;
    const Output& output_;
};

/// Every verb of the stream, one a line; unknown ones are told.
platform::Result<void> printLines(std::istream& input, VerbFinder& finder, Printer& printer,
                                  const Output& output)
{
    constexpr auto kBlanks = " \t\r";

    bool allKnown = true;
    for (std::string line; std::getline(input, line);) {
        if (line.find_first_not_of(kBlanks) == std::string::npos) {
            continue;
        }
        line.erase(line.find_last_not_of(kBlanks) + 1);
        const auto verbs = finder.find(text::wellFormed(line));
        if (!verbs) {
            tell(verbs.error().message, output.errors);
            allKnown = false;
        } else if (auto printed = printer.print(*verbs); !printed) {
            return printed;
        }
    }
    if (input.bad()) {
        return tl::unexpected(platform::Error{"standard input cannot be read", EIO});
    }
    return allKnown ? platform::Result<void>{} : tl::unexpected(platform::Error{{}, ENOENT});
}

} // namespace

platform::Result<void> conjugate(Session& session, const Arguments& arguments, const Output& output)
{
    auto directory = VerbDirectory::read(session);
    if (!directory) {
        return tl::unexpected(directory.error());
    }
    Printer printer{session, arguments, output};
    VerbFinder finder{*directory, output};
    if (arguments.verbsFromInput) {
        return printLines(std::cin, finder, printer, output);
    }
    return finder.find(arguments.text).and_then([&](const auto& verbs) {
        return printer.print(verbs);
    });
}

} // namespace lumora::terminal
