// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "conjugator/text_table.h"
#include "fuzz/fuzz.h"
#include "support/temporary_folder.h"
#include "verbdb/content.h"

#include <array>

using namespace lumora;

namespace {

constexpr std::array kTables{"verbs.tsv", "models.tsv", "retired_ids.tsv"};

/// Small tables that fit each other.
class Tables {
public:
    Tables()
    {
        for (std::size_t i = 0; i < kTables.size(); ++i) {
            good_.at(i) = support::contentOf(std::filesystem::path{LUMORA_TABLES} / kTables.at(i));
            write(i, good_.at(i));
        }
    }

    const std::filesystem::path& folder() const { return folder_.path(); }
    void write(std::size_t table, std::string_view content) const
    {
        support::writeContent(folder_ / kTables.at(table), content);
    }
    void mend(std::size_t table) const { write(table, good_.at(table)); }

private:
    support::TemporaryFolder folder_;
    std::array<std::string, kTables.size()> good_;
};

} // namespace

/// Any bytes in the place of one table, which the first byte chooses: the table
/// is refused, or every verb can be conjugated.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const Tables tables;
    const fuzz::TimeLimit limit;
    if (size == 0) {
        return 0;
    }
    const auto table = data[0] % kTables.size();
    tables.write(table, fuzz::textOf(data + 1, size - 1));
    try {
        const auto content = verbdb::readContent(tables.folder());
        for (const auto& verb : content.verbs) {
            content.conjugator.headword(verb.entry);
            content.conjugator.rows(verb.entry);
        }
    } catch (const conjugator::TableError&) {
        // Refused, with its file and line.
    }
    tables.mend(table);
    return 0;
}
