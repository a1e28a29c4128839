// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "verbdb/helper_tables.h"

#include "verbdb/sql_output.h"

#include <string_view>
#include <unordered_set>
#include <utility>

namespace lumora::verbdb {

namespace {

// Bound as text, whose NULs SQLite keeps.
constexpr auto kInsertPacked = "INSERT INTO packed_forms VALUES (?1, CAST(?2 AS BLOB))";
constexpr auto kInsertFacts = "INSERT INTO verb_facts VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9)";
constexpr auto kInsertDivisions = "INSERT INTO form_divisions VALUES (?1, CAST(?2 AS BLOB))";

/// A verb's distinct forms as the search reads them: NUL form NUL form NUL, with
/// the case folded that LIKE does not tell apart, which is ASCII's alone.
class PackedForms {
public:
    void add(std::string_view form)
    {
        std::string folded(form);
        for (char& byte : folded) {
            if (byte >= 'A' && byte <= 'Z') {
                byte = static_cast<char>(byte - 'A' + 'a');
            }
        }
        if (seen_.insert(folded).second) {
            packed_ += folded;
            packed_ += '\0';
        }
    }

    std::string take() { return std::move(packed_); }

private:
    std::string packed_ = std::string(1, '\0');
    std::unordered_set<std::string> seen_;
};

} // namespace

HelperTables::HelperTables(const Content& content) : content_(content), namesakes_(content) {}

void HelperTables::add(const Verb& verb, const std::vector<conjugator::Row>& rows)
{
    PackedForms packed;
    for (const auto& row : rows) {
        packed.add(row.verb);
    }
    packed_.push_back(packed.take());
    const auto divisions =
        idOfDivisions_.emplace(packedDivisions(rows), idOfDivisions_.size() + 1).first->second;
    facts_.push_back(
        {&verb, content_.conjugator.group(verb.entry), namesakes_.of(verb), divisions});
}

void HelperTables::write(Output& output) const
{
    {
        Insertion insertPacked(output, kInsertPacked);
        for (std::size_t at = 0; at < packed_.size(); ++at) {
            insertPacked << facts_[at].verb->id << std::string_view(packed_[at]);
            insertPacked.run();
        }
    }
    Insertion insertDivisions(output, kInsertDivisions);
    for (const auto& [divisions, id] : idOfDivisions_) {
        insertDivisions << static_cast<std::int64_t>(id) << std::string_view(divisions);
        insertDivisions.run();
    }
    writeFacts(output);
}

void HelperTables::writeFacts(Output& output) const
{
    Insertion insertFacts(output, kInsertFacts);
    for (const auto& facts : facts_) {
        const auto& entry = facts.verb->entry;
        const auto traits = namesOf(entry, kTraits);
        const auto participle = namesOf(entry, kParticipleKinds);
        insertFacts << facts.verb->id << std::int64_t{facts.group} << std::string_view(entry.model)
                    << facts.namesake << kAuxiliaries[static_cast<std::size_t>(entry.auxiliary)]
                    << std::string_view(traits) << std::string_view(participle)
                    << std::int64_t{facts.verb->use} << static_cast<std::int64_t>(facts.divisions);
        insertFacts.run();
    }
}

} // namespace lumora::verbdb
