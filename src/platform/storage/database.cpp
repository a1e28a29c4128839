// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/storage/database.h"

#include <sqlite3.h>

#include <cassert>
#include <type_traits>
#include <utility>

namespace lumora::platform {

namespace {

constexpr int kPrimaryCodeMask = 0xff;
constexpr int kBusyMilliseconds = 2000;

int bindValue(sqlite3_stmt* statement, int place, const SqlValue& value)
{
    return std::visit(
        [statement, place](const auto& bound) {
            using Kind = std::decay_t<decltype(bound)>;
            if constexpr (std::is_same_v<Kind, std::nullptr_t>) {
                return sqlite3_bind_null(statement, place);
            } else if constexpr (std::is_same_v<Kind, std::int64_t>) {
                return sqlite3_bind_int64(statement, place, bound);
            } else if constexpr (std::is_same_v<Kind, double>) {
                return sqlite3_bind_double(statement, place, bound);
            } else {
                // NOLINTNEXTLINE(performance-no-int-to-ptr): SQLite's own constant.
                return sqlite3_bind_text64(statement, place, bound.data(), bound.size(),
                                           SQLITE_TRANSIENT, SQLITE_UTF8);
            }
        },
        value);
}

} // namespace

ResultSet::ResultSet(Database& database, sqlite3_stmt* statement)
    : database_(&database), statement_(statement)
{}

ResultSet::ResultSet(ResultSet&& other) noexcept
    : database_(other.database_),
      statement_(std::exchange(other.statement_, nullptr)),
      failed_(other.failed_)
{}

ResultSet& ResultSet::operator=(ResultSet&& other) noexcept
{
    if (this != &other) {
        sqlite3_finalize(statement_);
        database_ = other.database_;
        statement_ = std::exchange(other.statement_, nullptr);
        failed_ = other.failed_;
    }
    return *this;
}

ResultSet::~ResultSet()
{
    sqlite3_finalize(statement_);
}

bool ResultSet::next()
{
    if (statement_ == nullptr) {
        return false;
    }
    if (sqlite3_db_handle(statement_) != database_->connection_) {
        // The connection was closed under this set.
        failed_ = true;
        return false;
    }
    const int code = sqlite3_step(statement_);
    if (code == SQLITE_ROW) {
        return true;
    }
    if (code != SQLITE_DONE) {
        failed_ = true;
        database_->rememberError();
    }
    // Another step would start over; and the read lock ends here.
    sqlite3_finalize(std::exchange(statement_, nullptr));
    return false;
}

int ResultSet::columnIndex(std::string_view name) const
{
    // Names differ by more than case; of two equal ones the last counts, as in
    // "SELECT a.*, b.*".
    for (int column = sqlite3_column_count(statement_) - 1; column >= 0; --column) {
        const char* const candidate = sqlite3_column_name(statement_, column);
        if (candidate != nullptr && std::string_view(candidate).size() == name.size() &&
            sqlite3_strnicmp(candidate, name.data(), static_cast<int>(name.size())) == 0) {
            return column;
        }
    }
    return -1;
}

std::int64_t ResultSet::longForColumn(int column) const
{
    return statement_ == nullptr ? 0 : sqlite3_column_int64(statement_, column);
}

double ResultSet::doubleForColumn(int column) const
{
    return statement_ == nullptr ? 0 : sqlite3_column_double(statement_, column);
}

bool ResultSet::boolForColumn(int column) const
{
    return longForColumn(column) != 0;
}

std::string ResultSet::stringForColumn(int column) const
{
    if (statement_ == nullptr) {
        return {};
    }
    // The text first: it may convert the value and change its length.
    const unsigned char* const text = sqlite3_column_text(statement_, column);
    if (text == nullptr) {
        return {};
    }
    return {reinterpret_cast<const char*>(text),
            static_cast<std::size_t>(sqlite3_column_bytes(statement_, column))};
}

Database::Database(std::string fileUrl) : fileUrl_(std::move(fileUrl)) {}

Database::~Database()
{
    close();
}

Result<void> Database::open()
{
    // The queue lets one thread in at a time, so SQLite need not lock as well.
    const int code = sqlite3_open_v2(fileUrl_.c_str(), &connection_,
                                     SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_URI |
                                         SQLITE_OPEN_NOMUTEX,
                                     nullptr);
    if (code != SQLITE_OK) {
        closedReason_ = rememberError();
        sqlite3_close(std::exchange(connection_, nullptr));
        return tl::unexpected(closedReason_);
    }
    sqlite3_busy_timeout(connection_, kBusyMilliseconds);
    // A sort of all rows would else end in a temporary file, and the pages of a
    // long table would push each other out at every search.
    sqlite3_exec(connection_, "PRAGMA temp_store = MEMORY; PRAGMA cache_size = -4000", nullptr,
                 nullptr, nullptr);
    // With a write-ahead log a row need not reach the disk by itself. The file
    // remembers its log, a connection has to be told.
    const auto isWal = [](void* answer, int, char** values, char**) {
        *static_cast<bool*>(answer) = values[0] != nullptr && std::string_view{values[0]} == "wal";
        return 0;
    };
    bool writesAhead = false;
    sqlite3_exec(connection_, "PRAGMA journal_mode", isWal, &writesAhead, nullptr);
    if (writesAhead) {
        sqlite3_exec(connection_, "PRAGMA synchronous = NORMAL", nullptr, nullptr, nullptr);
    }
    return {};
}

void Database::close()
{
    if (connection_ == nullptr) {
        return;
    }
    // Result sets that still exist keep their statement, which keeps the
    // connection's memory; reset, they hold neither a row nor a lock.
    sqlite3_stmt* statement = nullptr;
    while ((statement = sqlite3_next_stmt(connection_, statement)) != nullptr) {
        sqlite3_reset(statement);
    }
    sqlite3_close_v2(std::exchange(connection_, nullptr));
    closedReason_ = {"the database is closed", SQLITE_MISUSE};
}

Error Database::rememberError()
{
    lastError_ = {sqlite3_errmsg(connection_), sqlite3_errcode(connection_) & kPrimaryCodeMask};
    return lastError_;
}

Result<sqlite3_stmt*> Database::prepared(std::string_view sql, const std::vector<SqlValue>& values)
{
    if (connection_ == nullptr) {
        lastError_ = closedReason_;
        return tl::unexpected(lastError_);
    }
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(connection_, sql.data(), static_cast<int>(sql.size()), &statement,
                           nullptr) != SQLITE_OK) {
        return tl::unexpected(rememberError());
    }
    const bool valuesFit = statement != nullptr && sqlite3_bind_parameter_count(statement) ==
                                                       static_cast<int>(values.size());
    assert(valuesFit && "a statement with as many values as it has question marks");
    if (!valuesFit) {
        sqlite3_finalize(statement);
        lastError_ = {"the values do not fit the statement", SQLITE_MISUSE};
        return tl::unexpected(lastError_);
    }
    int place = 0;
    for (const SqlValue& value : values) {
        if (bindValue(statement, ++place, value) != SQLITE_OK) {
            rememberError();
            sqlite3_finalize(statement);
            return tl::unexpected(lastError_);
        }
    }
    return statement;
}

Result<ResultSet> Database::executeQuery(std::string_view sql, const std::vector<SqlValue>& values)
{
    return prepared(sql, values).map([this](sqlite3_stmt* statement) {
        return ResultSet(*this, statement);
    });
}

Result<void> Database::executeUpdate(std::string_view sql, const std::vector<SqlValue>& values)
{
    Result<ResultSet> rows = executeQuery(sql, values);
    if (!rows) {
        return tl::unexpected(rows.error());
    }
    while (rows->next()) {
    }
    if (rows->failed()) {
        return tl::unexpected(lastError_);
    }
    return {};
}

std::string Database::lastErrorMessage() const
{
    return lastError_.message;
}

int Database::lastErrorCode() const
{
    return lastError_.code;
}

} // namespace lumora::platform
