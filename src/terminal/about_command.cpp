// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/verb_facts.h"
#include "terminal/arguments.h"
#include "terminal/commands.h"
#include "terminal/loaded_verbs.h"
#include "terminal/output.h"
#include "terminal/session.h"

#include <cerrno>
#include <string>
#include <string_view>
#include <utility>

namespace lumora::terminal {

namespace {

using Lines = std::vector<std::pair<std::string, std::string>>;

/// The words of the database as a person reads them.
std::string worded(const std::string& word)
{
    static constexpr std::pair<std::string_view, std::string_view> kWords[] = {
        {"aspirated", "aspirated h"},
        {"plural", "plural in figurative use"},
        {"en", "with en"},
        {"invariable", "invariable participle"},
        {"indirect", "participle does not agree with the subject"},
    };
    for (const auto& [stored, shown] : kWords) {
        if (word == stored) {
            return std::string{shown};
        }
    }
    return word;
}

std::string listed(const std::vector<std::string>& words)
{
    std::string text;
    for (const auto& word : words) {
        text += (text.empty() ? "" : ", ") + worded(word);
    }
    return text;
}

Lines linesOf(const data::Verb& verb, const data::VerbFacts& facts)
{
    auto traits = facts.traits;
    traits.insert(traits.end(), facts.participle.begin(), facts.participle.end());
    return {
        {"infinitive", verb.french},
        {"group", std::to_string(facts.group)},
        {"model", facts.model},
        {"like", facts.like ? facts.like->french : std::string{}},
        {"auxiliary", listed(facts.auxiliaries)},
        {"traits", listed(traits)},
        {"use", std::to_string(facts.use)},
    };
}

void print(const Lines& lines, const Output& output)
{
    constexpr std::size_t kNameWidth = 12;

    for (const auto& [name, value] : lines) {
        if (!output.isTerminal()) {
            output.stream << name << '\t' << value << '\n';
        } else if (!value.empty()) {
            output.stream << name << std::string(kNameWidth - name.size(), ' ') << value << '\n';
        }
    }
}

} // namespace

platform::Result<void> about(Session& session, const Arguments& arguments, const Output& output)
{
    const auto verbs = VerbDirectory::read(session).and_then(
        [&](VerbDirectory directory) { return directory.named(arguments.text); });
    if (!verbs) {
        return tl::unexpected(verbs.error());
    }
    std::vector<Lines> blocks;
    for (const auto& verb : *verbs) {
        platform::Result<std::optional<data::VerbFacts>> facts;
        session.queue().inDatabase(
            [&](platform::Database& database) { facts = data::readVerbFacts(database, verb->id); });
        if (!facts) {
            return tl::unexpected(facts.error());
        }
        if (!*facts) {
            return tl::unexpected(
                platform::Error{"nothing is known of \"" + verb->french + "\"", ENODATA});
        }
        blocks.push_back(linesOf(*verb, **facts));
    }
    for (const auto& lines : blocks) {
        output.stream << (&lines == &blocks.front() ? "" : "\n");
        print(lines, output);
    }
    return {};
}

} // namespace lumora::terminal
