// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "verbdb/verb_facts.h"

#include <stdexcept>

namespace lumora::verbdb {

namespace {

using conjugator::Division;

char codeOf(const Division& division)
{
    constexpr std::size_t kLongestEnding = 125;

    switch (division.kind) {
    case Division::Kind::Compound:
        return 1;
    case Division::Kind::Irregular:
        return 2;
    default:
        break;
    }
    if (division.endingLength > kLongestEnding) {
        throw std::runtime_error("an ending is too long to be packed");
    }
    const auto changed = division.kind == Division::Kind::ChangedStem ? 1U : 0U;
    return static_cast<char>(4U + 2U * division.endingLength + changed);
}

} // namespace

Namesakes::Namesakes(const Content& content)
{
    for (const auto& verb : content.verbs) {
        const auto& entry = verb.entry;
        if (entry.infinitive == entry.model && !entry.pronominal) {
            idOfModel_.emplace(entry.model, verb.id);
        }
    }
    for (const auto& verb : content.verbs) {
        if (verb.entry.infinitive == verb.entry.model) {
            idOfModel_.emplace(verb.entry.model, verb.id);
        }
    }
}

std::optional<std::int64_t> Namesakes::of(const Verb& verb) const
{
    const auto found = idOfModel_.find(verb.entry.model);
    if (found == idOfModel_.end() || found->second == verb.id) {
        return std::nullopt;
    }
    return found->second;
}

std::string packedDivisions(const std::vector<conjugator::Row>& rows)
{
    std::string packed;
    for (const auto& row : rows) {
        if (!row.shown) {
            break;
        }
        for (const auto& division : row.divisions) {
            packed += codeOf(division);
        }
        packed += '\0';
    }
    return packed;
}

} // namespace lumora::verbdb
