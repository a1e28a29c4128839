// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/verb_relations.h"

#include "data/verb_reader.h"
#include "platform/storage/database.h"

#include <algorithm>
#include <utility>

namespace lumora::data {

namespace {

constexpr std::string_view kBeforePronoun = " (";

constexpr std::string_view kColumns =
    "SELECT verb._id, english, portuguese, german, french, dutch, spanish, italian, "
    "favourite._id AS favourite_available FROM verb LEFT JOIN favourite ON favourite.verbid = "
    "verb._id ";

constexpr std::string_view kSameInfinitive =
    "WHERE french IN (?1, ?1 || ' (se)', ?1 || ' (s'')', ?1 || ' (s''en)') AND verb._id <> ?2 "
    "ORDER BY verb._id";

// More rows than are shown, since some have the same name as each other, as the verb or
// as the verb of the model.
constexpr std::string_view kSameModel =
    "JOIN verb_facts ON verb_facts.verbid = verb._id WHERE model = ?1 AND verb._id <> ?2 "
    "AND (auxiliary, instr(traits, 'pronominal') > 0) = "
    "(SELECT auxiliary, instr(traits, 'pronominal') > 0 FROM verb_facts WHERE verbid = ?2) "
    "ORDER BY use_class, simplified_french LIMIT 20";

constexpr std::string_view kById = "WHERE verb._id = ?1";

platform::Result<std::vector<VerbPtr>> verbsOf(platform::Database& database,
                                               std::string_view condition,
                                               const std::vector<platform::SqlValue>& values)
{
    std::vector<VerbPtr> verbs;
    auto rows = database.executeQuery(std::string{kColumns} += condition, values);
    if (!readVerbs(rows, VerbReader::Spellings::Plain, verbs)) {
        return tl::unexpected(database.lastError());
    }
    return verbs;
}

/// The first few of other infinitives than those two, each once.
std::vector<VerbPtr> firstOfEachName(std::string_view own, std::string_view model,
                                     const std::vector<VerbPtr>& verbs)
{
    std::vector<VerbPtr> named;
    for (const auto& verb : verbs) {
        const auto name = bareInfinitive(verb->french);
        const bool known = name == own || name == model ||
                           std::any_of(named.begin(), named.end(), [&](auto& each) {
                               return bareInfinitive(each->french) == name;
                           });
        if (!known && named.size() < kAlikeCount) {
            named.push_back(verb);
        }
    }
    return named;
}

} // namespace

platform::Result<VerbRelations> readVerbRelations(platform::Database& database, const Verb& verb,
                                                  const std::optional<VerbFacts>& facts)
{
    const std::string bare{bareInfinitive(verb.french)};
    const auto namesakes = verbsOf(database, kSameInfinitive, {bare, verb.id});
    if (!namesakes) {
        return tl::unexpected(namesakes.error());
    }
    VerbRelations relations;
    for (const auto& each : *namesakes) {
        (each->french == verb.french ? relations.homographs : relations.partners).push_back(each);
    }
    if (facts) {
        const auto alike = verbsOf(database, kSameModel, {facts->model, verb.id});
        if (!alike) {
            return tl::unexpected(alike.error());
        }
        const std::string_view like =
            facts->like ? bareInfinitive(facts->like->french) : std::string_view{};
        relations.alike = firstOfEachName(bare, like, *alike);
    }
    return relations;
}

platform::Result<VerbPtr> readVerb(platform::Database& database, std::int64_t id)
{
    return verbsOf(database, kById, {id}).map([](const std::vector<VerbPtr>& verbs) {
        return verbs.empty() ? VerbPtr{} : verbs.front();
    });
}

std::string_view bareInfinitive(std::string_view french)
{
    return french.substr(0, french.find(kBeforePronoun));
}

bool isFiledWithPronoun(std::string_view french)
{
    return french.find(kBeforePronoun) != std::string_view::npos;
}

} // namespace lumora::data
