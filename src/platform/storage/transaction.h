// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/base/error.h"

namespace lumora::platform {

class Database;

/// Statements that take effect together or not at all: what is not committed is
/// rolled back. Must not outlive the block that it was made in.
class Transaction {
public:
    /// Takes the write lock at once, so that no statement after it finds the
    /// file taken. An error when another program holds it.
    static Result<Transaction> begin(Database& database);
    Transaction(Transaction&& other) noexcept;
    Transaction& operator=(Transaction&&) = delete;
    ~Transaction();

    Result<void> commit();

private:
    explicit Transaction(Database& database) : database_{&database} {}

    /// Null once there is nothing left to roll back.
    Database* database_;
};

} // namespace lumora::platform
