// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/verb_facts.h"
#include "data/verb_reader.h"
#include "data/verb_relations.h"
#include "detail/missing_forms.h"
#include "platform/storage/database_queue.h"
#include "terminal/arguments.h"
#include "terminal/commands.h"
#include "terminal/loaded_verbs.h"
#include "terminal/output.h"
#include "terminal/session.h"

#include <cerrno>
#include <optional>
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

std::string listed(const std::vector<data::VerbPtr>& verbs)
{
    std::string text;
    for (const auto& verb : verbs) {
        text += (text.empty() ? "" : ", ") + verb->french;
    }
    return text;
}

/// What one verb's lines are made of.
struct Knowledge {
    std::optional<data::VerbFacts> facts;
    data::VerbRelations relations;
};

/// Reads the verb's forms into it besides.
platform::Result<Knowledge> readKnowledge(platform::Database& database, data::Verb& verb)
{
    const auto facts = data::readVerbFacts(database, verb.id);
    if (!facts) {
        return tl::unexpected(facts.error());
    }
    if (!*facts) {
        return tl::unexpected(
            platform::Error{"nothing is known of \"" + verb.french + "\"", ENODATA});
    }
    auto relations = data::readVerbRelations(database, verb, *facts);
    if (!relations) {
        return tl::unexpected(relations.error());
    }
    if (!data::loadConjugations(database, verb)) {
        return tl::unexpected(database.lastError());
    }
    return Knowledge{*facts, std::move(*relations)};
}

Lines linesOf(const data::Verb& verb, const Knowledge& known, const Session& session)
{
    const auto& facts = *known.facts;
    const auto missing = detail::inWords(detail::missingForms(verb), session.services().bundle,
                                         session.services().settings);
    const std::string none;
    auto traits = facts.traits;
    traits.insert(traits.end(), facts.participle.begin(), facts.participle.end());
    return {
        {"infinitive", verb.french},
        {"past", verb.infinitif.size() > 1 ? verb.infinitif[1]->verb : none},
        {"group", std::to_string(facts.group)},
        {"model", facts.model},
        {"like", facts.like ? facts.like->french : std::string{}},
        {"auxiliary", listed(facts.auxiliaries)},
        {"traits", listed(traits)},
        {"unused", missing.usedOnly ? none : missing.tenses},
        {"used only", missing.usedOnly ? missing.tenses : none},
        {"use", std::to_string(facts.use)},
        {"partners", listed(known.relations.partners)},
        {"alike", listed(known.relations.alike)},
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
        platform::Result<Knowledge> known;
        session.queue().inDatabase(
            [&](platform::Database& database) { known = readKnowledge(database, *verb); });
        if (!known) {
            return tl::unexpected(known.error());
        }
        blocks.push_back(linesOf(*verb, *known, session));
    }
    for (const auto& lines : blocks) {
        output.stream << (&lines == &blocks.front() ? "" : "\n");
        print(lines, output);
    }
    return {};
}

} // namespace lumora::terminal
