// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/base/error.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace lumora::platform {

using SqlValue = std::variant<std::nullptr_t, std::int64_t, double, std::string>;

class Database;

/// The rows of one statement, read by column name, one row per `next`.
///
/// Ends with its scope; must not outlive the block that it was made in.
class ResultSet {
public:
    ResultSet(ResultSet&&) noexcept;
    ResultSet& operator=(ResultSet&&) noexcept;
    ~ResultSet();

    /// Steps to the next row. False at the end and on a failure: `failed`
    /// tells which.
    bool next();
    bool failed() const { return failed_; }

    /// The column's place; -1 when the statement has no such column. Look it
    /// up once before a long loop.
    int columnIndex(std::string_view name) const;

    /// NULL and an absent column read as 0, 0.0, false and the empty text.
    std::int64_t longForColumn(int column) const;
    double doubleForColumn(int column) const;
    bool boolForColumn(int column) const;
    std::string stringForColumn(int column) const;

private:
    friend class Database;
    ResultSet(Database& database, sqlite3_stmt* statement);
    Database* database_;
    sqlite3_stmt* statement_;
    bool failed_ = false;
};

/// One SQLite connection, handed out by a DatabaseQueue for a block.
class Database {
public:
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    /// Values are bound to the `?` of the text in order. The result set may
    /// still fail while it is stepped.
    Result<ResultSet> executeQuery(std::string_view sql, const std::vector<SqlValue>& values);
    Result<void> executeUpdate(std::string_view sql, const std::vector<SqlValue>& values);

    /// Of the last failing call; SQLite's words and primary code.
    Error lastError() const { return lastError_; }
    std::string lastErrorMessage() const;
    int lastErrorCode() const;

    /// Ends the connection; the queue opens it again for the next block.
    void close();
    bool isOpen() const { return connection_ != nullptr; }

    /// The connection itself, for code that adds tables of its own to it; null while
    /// closed. Only `close` may close it.
    sqlite3* handle() const { return connection_; }

private:
    friend class DatabaseQueue;
    friend class ResultSet;
    explicit Database(std::string fileUrl);
    Result<void> open();
    Error rememberError();
    Result<sqlite3_stmt*> prepared(std::string_view sql, const std::vector<SqlValue>& values);

    std::string fileUrl_;
    sqlite3* connection_ = nullptr;
    Error lastError_;
    /// Why statements fail while there is no connection.
    Error closedReason_;
};

} // namespace lumora::platform
