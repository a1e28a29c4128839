// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/homographs.h"

#include "data/verb_facts.h"
#include "platform/storage/database.h"

#include <algorithm>
#include <limits>
#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace lumora::data {

namespace {

constexpr std::string_view kHomographs =
    "SELECT verbid, french, auxiliary, model FROM verb_facts JOIN verb ON verb._id = verbid "
    "WHERE french IN (SELECT french FROM verb GROUP BY french HAVING COUNT(*) > 1)";

struct Homograph {
    std::int64_t id;
    std::string auxiliary;
    std::string model;
};

platform::Result<std::map<std::string, std::vector<Homograph>>>
homographsByName(platform::Database& database)
{
    auto rows = database.executeQuery(kHomographs, {});
    if (!rows) {
        return tl::unexpected(rows.error());
    }
    const int id = rows->columnIndex("verbid");
    const int french = rows->columnIndex("french");
    const int auxiliary = rows->columnIndex("auxiliary");
    const int model = rows->columnIndex("model");
    std::map<std::string, std::vector<Homograph>> found;
    while (rows->next()) {
        found[rows->stringForColumn(french)].push_back({rows->longForColumn(id),
                                                        rows->stringForColumn(auxiliary),
                                                        rows->stringForColumn(model)});
    }
    if (rows->failed()) {
        return tl::unexpected(database.lastError());
    }
    return found;
}

std::string distinctionOf(const Homograph& verb, const std::vector<Homograph>& others)
{
    const auto likeIt = std::count_if(others.begin(), others.end(), [&](const Homograph& other) {
        return other.auxiliary == verb.auxiliary;
    });
    auto text = verb.auxiliary;
    if (const auto plus = text.find('+'); plus != std::string::npos) {
        text.replace(plus, 1, ", ");
    }
    return likeIt > 1 ? text + ", " + verb.model : text;
}

} // namespace

platform::Result<void> distinguishHomographs(platform::Database& database,
                                             const std::vector<VerbPtr>& verbs)
{
    const auto homographs = homographsByName(database);
    if (!homographs) {
        return tl::unexpected(homographs.error());
    }
    for (const auto& verb : verbs) {
        const auto found = homographs->find(verb->french);
        if (found == homographs->end()) {
            continue;
        }
        for (const auto& homograph : found->second) {
            if (homograph.id == verb->id) {
                verb->distinction = distinctionOf(homograph, found->second);
            }
        }
    }
    return {};
}

platform::Result<void> putCommonestFirst(platform::Database& database, std::vector<VerbPtr>& verbs)
{
    std::vector<std::pair<int, VerbPtr>> byUse;
    for (const auto& verb : verbs) {
        const auto facts = readVerbFacts(database, verb->id);
        if (!facts) {
            return tl::unexpected(facts.error());
        }
        // One of which nothing is known goes last.
        byUse.emplace_back(*facts ? (*facts)->use : std::numeric_limits<int>::max(), verb);
    }
    std::stable_sort(byUse.begin(), byUse.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    std::transform(byUse.begin(), byUse.end(), verbs.begin(),
                   [](const auto& entry) { return entry.second; });
    return {};
}

} // namespace lumora::data
