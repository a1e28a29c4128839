// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/form_search/packed_search.h"

#include "platform/form_search/resident_table.h"
#include "platform/storage/database.h"

#include <sqlite3.h>

#include <new>
#include <string>
#include <string_view>
#include <utility>

// A join of 7,000 verbs with their 700,000 forms takes SQLite ten frames whatever
// the index: it evaluates every term of the condition for every form. One row a
// verb has to come out of the join, and one call has to look through all forms of
// the verb. Both are possible without a change to the statement: the temporary
// schema comes before the file's when a table is looked up, so a virtual table
// there stands in for the real one; and the connection has a LIKE of its own. The
// form that the stand-in hands to it is a pointer, which reads as NULL everywhere
// else.
//
// What the join finds SQLite then copies several times, for GROUP BY and for the
// sort. Texts that stay where they are it does not copy for the first; so the
// other side of the join is kept in memory as well.
//
// The stand-ins are made for one statement and dropped after it. Lasting, they
// would have to serve all the others too.

namespace lumora::platform {

struct PackedTables {
    PackedColumn column;
    std::shared_ptr<const ResidentTable> packed;
    std::shared_ptr<const ResidentTable> outer;
};

namespace {

std::string quoted(const char* name)
{
    return '"' + std::string(name) + '"';
}

bool isPacked(const ResidentTable& table)
{
    for (std::size_t row = 0; row < table.size(); ++row) {
        const std::string_view texts = table.cell(row, 1);
        if (texts.empty() || texts.front() != '\0' || texts.back() != '\0') {
            return false;
        }
    }
    return true;
}

/// Null when the helper table is missing, unreadable or not what it should be.
std::shared_ptr<const PackedTables> readTables(sqlite3* connection, const PackedColumn& column)
{
    auto tables = std::make_shared<PackedTables>();
    tables->column = column;
    const std::string key = quoted(column.key);
    tables->packed = ResidentTable::read(connection,
                                         "SELECT " + key + ", " + quoted(column.packedColumn) +
                                             " AS " + quoted(column.column) + " FROM main." +
                                             quoted(column.packedTable) + " ORDER BY " + key,
                                         ResidentTable::Cells::Pointer);
    if (tables->packed == nullptr || !isPacked(*tables->packed)) {
        return nullptr;
    }
    tables->outer = ResidentTable::read(
        connection, "SELECT * FROM main." + quoted(column.outerTable) + " ORDER BY 1",
        ResidentTable::Cells::Text);
    return tables->outer == nullptr ? nullptr : tables;
}

} // namespace

PackedSearch::PackedSearch(Database& database, const PackedColumn& column) : database_(database)
{
    if (!database.isOpen()) {
        return;
    }
    try {
        auto& tables = database.packedTables_;
        if (tables == nullptr || tables->column != column) {
            tables = readTables(database.connection_, column);
        }
        if (tables == nullptr) {
            return;
        }
        connection_ = database.connection_;
        for (const auto& [name, table] : {std::pair{column.table, tables->packed},
                                          std::pair{column.outerTable, tables->outer}}) {
            if (showResidentTable(connection_, name, table)) {
                shown_.push_back(name);
            }
        }
    } catch (const std::bad_alloc&) {
        // The real tables do without.
    }
}

PackedSearch::~PackedSearch()
{
    if (connection_ == nullptr || connection_ != database_.connection_) {
        return;
    }
    // Without memory for this, or with rows still being read, only a new
    // connection is sure to be without the stand-ins.
    for (const char* name : shown_) {
        if (!dropResidentTable(connection_, name)) {
            database_.close();
            return;
        }
    }
}

} // namespace lumora::platform
