// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <vector>

struct sqlite3;

namespace lumora::platform {

class Database;

/// A text column that is searched through a join, and the helper table that
/// holds the same texts packed, one row a key: every distinct text between NULs,
/// as PackedPattern reads them. `outerTable` is what it is joined to, its key the
/// first column. Static SQL names.
struct PackedColumn {
    const char* table;
    const char* key;
    const char* column;
    const char* packedTable;
    const char* packedColumn;
    const char* outerTable;

    bool operator==(const PackedColumn&) const = default;
};

/// While it stands, `table` names on this connection a table with one row a key,
/// whose `column` LIKE answers whether any text of the key does; and `outerTable`
/// the rows that it had at the queue's first search.
///
/// So it changes what a statement counts, and suits the one that joins on the
/// key, asks LIKE of the column and reads no other; it must stand from before
/// that statement is prepared until its rows are gone. Without the helper table,
/// or when anything else is missing, it does nothing: the statement runs on the
/// real tables, slower, with the same rows.
class PackedSearch {
public:
    PackedSearch(Database& database, const PackedColumn& column);
    PackedSearch(const PackedSearch&) = delete;
    PackedSearch& operator=(const PackedSearch&) = delete;
    ~PackedSearch();

    /// Whether the statement will be fast.
    bool isActive() const { return shown_.size() == 2; }

private:
    Database& database_;
    /// The connection with the stand-ins; null without one.
    sqlite3* connection_ = nullptr;
    /// The names of the tables stood in for.
    std::vector<const char*> shown_;
};

} // namespace lumora::platform
