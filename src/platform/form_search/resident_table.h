// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

struct sqlite3;

namespace lumora::platform {

/// A table read into memory once: an integer key and texts, one row a key, in
/// the order of the keys.
class ResidentTable {
public:
    /// What the cells beside the key hold.
    enum class Cells {
        Text,   ///< texts, handed on as they are
        Packed, ///< packed texts: NULL to everyone but the table's own LIKE, which
                ///< answers whether any of them is like the pattern
    };

    /// Reads all rows of `select`, whose first column is the key. Null when a
    /// statement fails, a key is no integer, or a cell is neither NULL nor what
    /// it should be. The columns are named as the statement's.
    static std::unique_ptr<const ResidentTable> read(sqlite3* connection, const char* select,
                                                     Cells kind);

    /// Makes `name` mean this table on the connection, until `drop`: the temporary
    /// schema is looked up before the file's. The table must live until then.
    bool show(sqlite3* connection, const std::string& name) const;
    /// False when there is no memory, or a statement still reads the table.
    static bool drop(sqlite3* connection, const std::string& name);

    /// "CREATE TABLE ...", as SQLite wants to know the columns.
    const std::string& schema() const { return schema_; }
    Cells kind() const { return kind_; }
    std::size_t size() const { return keys_.size(); }
    std::int64_t key(std::size_t row) const { return keys_[row]; }
    /// `column` from 1, 0 being the key. None for NULL.
    const std::optional<std::string>& cell(std::size_t row, std::size_t column) const
    {
        return cells_[row * (cells_.size() / keys_.size()) + column - 1];
    }
    /// The row of the key; `size` when there is none.
    std::size_t rowOf(std::int64_t key) const;

private:
    Cells kind_ = Cells::Text;
    std::string schema_;
    std::vector<std::int64_t> keys_;
    std::vector<std::optional<std::string>> cells_;
};

} // namespace lumora::platform
