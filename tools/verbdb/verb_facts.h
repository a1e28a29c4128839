// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "conjugator/row.h"
#include "verbdb/content.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace lumora::verbdb {

/// The verbs that give the models their names.
class Namesakes {
public:
    explicit Namesakes(const Content& content);

    /// The id of the verb that this one is conjugated like; none for the namesake
    /// itself, and where a table has no such verb.
    std::optional<std::int64_t> of(const Verb& verb) const;

private:
    std::map<std::string, std::int64_t> idOfModel_;
};

/// The words whose flags are set, divided by ",".
template <std::size_t kCount>
std::string namesOf(const conjugator::VerbEntry& entry, const std::array<FlagName, kCount>& flags)
{
    std::string names;
    for (const auto& [name, flag] : flags) {
        if (entry.*flag) {
            names.append(names.empty() ? "" : ",").append(name);
        }
    }
    return names;
}

/// How the shown rows divide: a NUL behind each row, in it a byte a spelling,
/// 1 for a compound form, 2 for one without anything regular, else 4, more by two
/// for each byte of the ending, and by one when the stem is not the infinitive's.
std::string packedDivisions(const std::vector<conjugator::Row>& rows);

} // namespace lumora::verbdb
