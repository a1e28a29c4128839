// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/main_storyboard.h"
#include "platform/base/notification_center.h"
#include "platform/storage/database_queue.h"
#include "platform/storage/settings_store.h"
#include "support/world.h"

#include <cstdint>
#include <filesystem>
#include <vector>

namespace lumora::bench {

/// The logic around a database file, with no view to draw. The history is off:
/// no write to the disk gets into the figures.
class DatabaseWorld {
public:
    explicit DatabaseWorld(const std::filesystem::path& file);

    const platform::Services& services() const { return world_.services(); }
    platform::DatabaseQueue& queue() const { return *world_.queue; }
    platform::SettingsStore& settings() { return world_.settings; }
    support::World& world() { return world_; }

    std::vector<std::int64_t> verbIds() const;

private:
    support::World world_;
};

} // namespace lumora::bench
