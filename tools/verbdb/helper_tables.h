// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "conjugator/row.h"
#include "verbdb/content.h"
#include "verbdb/verb_facts.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace lumora::verbdb {

class Output;

/// What a file keeps that would take long to make of all forms: the packed forms
/// for the search, the facts of each verb and how its forms divide. In memory until
/// it is written, so that the forms can be made in small steps.
class HelperTables {
public:
    /// The content must outlive the object.
    explicit HelperTables(const Content& content);

    /// `rows` are all of the verb's; each verb once.
    void add(const Verb& verb, const std::vector<conjugator::Row>& rows);
    /// The tables are there and empty.
    void write(Output& output) const;

private:
    struct Facts {
        const Verb* verb;
        int group;
        std::optional<std::int64_t> namesake;
        std::size_t divisions;
    };

    void writeFacts(Output& output) const;

    const Content& content_;
    Namesakes namesakes_;
    std::vector<std::string> packed_;
    std::vector<Facts> facts_;
    /// Most verbs of a model divide alike and share a row.
    std::map<std::string, std::size_t> idOfDivisions_;
};

} // namespace lumora::verbdb
