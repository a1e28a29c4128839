// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "verbdb/sql_output.h"

#include <sqlite3.h>

#include <stdexcept>

namespace lumora::verbdb {

void Output::run(const char* sql)
{
    check(sqlite3_exec(connection_, sql, nullptr, nullptr, nullptr));
}

void Output::check(int code)
{
    if (code != SQLITE_OK && code != SQLITE_DONE) {
        throw std::runtime_error(sqlite3_errmsg(connection_));
    }
}

void Insertion::Finalizer::operator()(sqlite3_stmt* statement) const
{
    sqlite3_finalize(statement);
}

Insertion::Insertion(Output& output, const char* sql) : output_(output)
{
    sqlite3_stmt* prepared = nullptr;
    output.check(sqlite3_prepare_v2(output.get(), sql, -1, &prepared, nullptr));
    statement_.reset(prepared);
}

Insertion& Insertion::operator<<(std::int64_t number)
{
    output_.check(sqlite3_bind_int64(statement_.get(), ++bound_, number));
    return *this;
}

Insertion& Insertion::operator<<(std::string_view text)
{
    output_.check(sqlite3_bind_text(statement_.get(), ++bound_, text.data(),
                                    static_cast<int>(text.size()), SQLITE_STATIC));
    return *this;
}

Insertion& Insertion::operator<<(std::optional<std::int64_t> number)
{
    if (number) {
        return *this << *number;
    }
    output_.check(sqlite3_bind_null(statement_.get(), ++bound_));
    return *this;
}

void Insertion::run()
{
    output_.check(sqlite3_step(statement_.get()));
    output_.check(sqlite3_reset(statement_.get()));
    bound_ = 0;
}

} // namespace lumora::verbdb
