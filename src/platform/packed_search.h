// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

struct sqlite3;

namespace lumora::platform {

class Database;

/// A text column that is searched through a join, and the helper table that
/// holds the same texts packed, one row a key: every distinct text between NULs,
/// as PackedPattern reads them. Static SQL names.
struct PackedColumn {
    const char* table;
    const char* key;
    const char* column;
    const char* packedTable;
    const char* packedColumn;

    bool operator==(const PackedColumn&) const = default;
};

/// While it stands, `table` names on this connection a table with one row a key,
/// whose `column` LIKE answers whether any text of the key does.
///
/// So it changes what a statement counts, and suits the one that joins on the
/// key, asks LIKE of the column and reads no other; it must stand from before
/// that statement is prepared until its rows are gone. Without the helper table,
/// or when anything else is missing, it does nothing: the statement runs on the
/// real table, slower, with the same rows.
class PackedSearch {
public:
    PackedSearch(Database& database, const PackedColumn& column);
    PackedSearch(const PackedSearch&) = delete;
    PackedSearch& operator=(const PackedSearch&) = delete;
    ~PackedSearch();

    /// Whether the statement will be fast.
    bool isActive() const { return connection_ != nullptr; }

private:
    Database& database_;
    const char* table_;
    /// The connection with the stand-in; null without one.
    sqlite3* connection_ = nullptr;
};

} // namespace lumora::platform
