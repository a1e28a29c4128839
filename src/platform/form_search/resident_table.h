// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3;
struct sqlite3_value;

namespace lumora::platform {

/// A table read into memory once: an integer key and texts, one row a key, in
/// the order of the keys.
class ResidentTable {
public:
    /// How the cells beside the key are handed on.
    enum class Cells {
        Text,    ///< as they are
        Pointer, ///< NULL to everyone but `pointedCell`
    };

    /// Reads all rows of `select`, whose first column is the key. Null when a
    /// statement fails, a key is no integer, or a cell is neither text (a blob,
    /// for pointers) nor NULL. The columns are named as the statement's.
    static std::shared_ptr<const ResidentTable> read(sqlite3* connection, const std::string& select,
                                                     Cells kind);

    const std::vector<std::string>& columns() const { return columns_; }
    Cells kind() const { return kind_; }
    std::size_t size() const { return keys_.size(); }
    std::int64_t key(std::size_t row) const { return keys_[row]; }
    /// `column` from 1, 0 being the key. Followed by a NUL; without data for NULL.
    const std::string_view& cell(std::size_t row, std::size_t column) const
    {
        return cells_[row * (columns_.size() - 1) + column - 1];
    }
    /// The row of the key, looked for at `guess` and behind it first; `size`
    /// when there is none.
    std::size_t rowOf(std::int64_t key, std::size_t guess) const;

private:
    Cells kind_ = Cells::Text;
    std::vector<std::string> columns_;
    std::vector<std::int64_t> keys_;
    std::vector<std::string_view> cells_;
    /// What the cells look into.
    std::string bytes_;
};

/// Makes `name` mean the resident table on this connection, until
/// `dropResidentTable`: the temporary schema is looked up before the file's.
/// Both tell whether they succeeded; no statement may be under way.
bool showResidentTable(sqlite3* connection, const char* name,
                       const std::shared_ptr<const ResidentTable>& table);
bool dropResidentTable(sqlite3* connection, const char* name);

/// The cell behind a pointer; null for every other value.
const std::string_view* pointedCell(sqlite3_value* value);

} // namespace lumora::platform
