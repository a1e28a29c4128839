// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/history_record.h"

#include "platform/storage/database.h"

namespace lumora::data {

namespace {

// The row of this number, counted from the newest, is the first to go.
constexpr int kFirstRowTooMany = 52;

} // namespace

platform::Result<void> trimHistory(platform::Database& database)
{
    double cutOff = 0;
    {
        auto rows =
            database.executeQuery("SELECT _id, timestamp FROM history ORDER BY timestamp DESC", {});
        if (!rows) {
            return tl::make_unexpected(rows.error());
        }
        for (int row = 0; row < kFirstRowTooMany; ++row) {
            if (!rows->next()) {
                if (rows->failed()) {
                    return tl::make_unexpected(database.lastError());
                }
                return {};
            }
        }
        cutOff = rows->doubleForColumn(rows->columnIndex("timestamp"));
    }
    return database.executeUpdate("DELETE FROM history WHERE timestamp <= ?", {cutOff});
}

platform::Result<void> recordInHistory(platform::Database& database, std::int64_t verbId,
                                       double timestamp)
{
    return database.executeUpdate("DELETE FROM history WHERE verbid=?", {verbId})
        .and_then([&] {
            return database.executeUpdate("INSERT INTO history(verbid, timestamp) VALUES(?, ?)",
                                          {verbId, timestamp});
        })
        .and_then([&] { return trimHistory(database); });
}

} // namespace lumora::data
