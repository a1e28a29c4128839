// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

/// SQLite as it comes, without anything of ours.
namespace lumora::support {

using Row = std::vector<std::string>;

/// Visits the rows of one statement on a connection of its own; NULL reads as
/// "NULL". Every "?" is the same text.
inline void forEachRow(const std::filesystem::path& file, const std::string& sql,
                       const std::function<void(const Row&)>& visit, const std::string& value = {})
{
    sqlite3* database = nullptr;
    sqlite3_stmt* statement = nullptr;
    EXPECT_EQ(sqlite3_open(file.c_str(), &database), SQLITE_OK) << file;
    EXPECT_EQ(sqlite3_prepare_v2(database, sql.c_str(), -1, &statement, nullptr), SQLITE_OK)
        << sql << ": " << sqlite3_errmsg(database);
    for (int place = sqlite3_bind_parameter_count(statement); place > 0; --place) {
        sqlite3_bind_text(statement, place, value.data(), static_cast<int>(value.size()),
                          SQLITE_STATIC);
    }
    Row row(static_cast<std::size_t>(sqlite3_column_count(statement)));
    while (sqlite3_step(statement) == SQLITE_ROW) {
        for (std::size_t column = 0; column < row.size(); ++column) {
            const auto* text = sqlite3_column_text(statement, static_cast<int>(column));
            row[column] = text == nullptr ? "NULL" : reinterpret_cast<const char*>(text);
        }
        visit(row);
    }
    EXPECT_EQ(sqlite3_finalize(statement), SQLITE_OK) << sql << ": " << sqlite3_errmsg(database);
    sqlite3_close(database);
}

/// The rows with "|" between their columns.
inline std::vector<std::string> joinedRows(const std::filesystem::path& file,
                                           const std::string& sql)
{
    std::vector<std::string> rows;
    forEachRow(file, sql, [&](const Row& row) {
        rows.emplace_back();
        for (const auto& text : row) {
            rows.back() += (&text == row.data() ? "" : "|") + text;
        }
    });
    return rows;
}

} // namespace lumora::support
