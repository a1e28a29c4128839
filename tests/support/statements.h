// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/storage/database_queue.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace lumora::support {

/// Statements that must not fail, as on a queue so inside its block.
inline void executeOn(platform::Database& database, const std::string& sql,
                      const std::vector<platform::SqlValue>& values = {})
{
    const auto done = database.executeUpdate(sql, values);
    ASSERT_TRUE(done) << sql << ": " << done.error().message;
}

inline void executeOn(platform::DatabaseQueue& queue, const std::string& sql)
{
    queue.inDatabase([&](platform::Database& database) { executeOn(database, sql); });
}

/// The first column of a query.
inline std::vector<std::string> rowsOf(platform::Database& database, const std::string& sql,
                                       const std::vector<platform::SqlValue>& values = {})
{
    std::vector<std::string> texts;
    auto rows = database.executeQuery(sql, values);
    while (rows && rows->next()) {
        texts.push_back(rows->stringForColumn(0));
    }
    EXPECT_TRUE(rows && !rows->failed()) << sql << ": " << database.lastErrorMessage();
    return texts;
}

inline std::vector<std::string> rowsOf(platform::DatabaseQueue& queue, const std::string& sql)
{
    std::vector<std::string> texts;
    queue.inDatabase([&](platform::Database& database) { texts = rowsOf(database, sql); });
    return texts;
}

} // namespace lumora::support
