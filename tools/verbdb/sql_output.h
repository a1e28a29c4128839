// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace lumora::verbdb {

/// A connection that is written to. Every failure throws std::runtime_error
/// with SQLite's words.
class Output {
public:
    /// The connection stays its owner's.
    explicit Output(sqlite3* connection) : connection_(connection) {}

    void run(const char* sql);
    void check(int code);
    sqlite3* get() { return connection_; }

private:
    sqlite3* connection_;
};

/// An INSERT run once a row; bound texts must live until run().
class Insertion {
public:
    Insertion(Output& output, const char* sql);

    Insertion& operator<<(std::int64_t number);
    Insertion& operator<<(std::string_view text);
    /// None is NULL.
    Insertion& operator<<(std::optional<std::int64_t> number);
    void run();

private:
    struct Finalizer {
        void operator()(sqlite3_stmt* statement) const;
    };

    Output& output_;
    std::unique_ptr<sqlite3_stmt, Finalizer> statement_;
    int bound_ = 0;
};

} // namespace lumora::verbdb
