// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/storage/transaction.h"

#include "platform/storage/database.h"

#include <utility>

namespace lumora::platform {

Result<Transaction> Transaction::begin(Database& database)
{
    return database.executeUpdate("BEGIN IMMEDIATE", {}).map([&] { return Transaction{database}; });
}

Transaction::Transaction(Transaction&& other) noexcept
    : database_{std::exchange(other.database_, nullptr)}
{}

Transaction::~Transaction()
{
    if (database_ != nullptr) {
        // SQLite may have rolled back by itself, and refuses then.
        static_cast<void>(database_->executeUpdate("ROLLBACK", {}));
    }
}

Result<void> Transaction::commit()
{
    return database_->executeUpdate("COMMIT", {}).map([this] { database_ = nullptr; });
}

} // namespace lumora::platform
