// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "database_world.h"

namespace lumora::bench {

DatabaseWorld::DatabaseWorld(const std::filesystem::path& file)
{
    world_.queue = platform::DatabaseQueue::open(platform::fileUrl(file));
    world_.settings.setValue(false, "UseHistory");
}

std::vector<std::int64_t> DatabaseWorld::verbIds() const
{
    std::vector<std::int64_t> ids;
    queue().inDatabase([&](platform::Database& connection) {
        auto rows = connection.executeQuery("SELECT _id FROM verb ORDER BY _id", {});
        while (rows && rows->next()) {
            ids.push_back(rows->longForColumn(0));
        }
    });
    return ids;
}

} // namespace lumora::bench
