// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/storage/database.h"

#include <atomic>
#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>

namespace lumora::platform {

/// The one way to a database file: a serial queue around one connection.
///
/// A block runs at once on the calling thread and alone; a block inside a
/// block is a mistake in the program and stops it. A connection closed inside
/// a block is opened anew by the next; when that fails every statement of the
/// block fails with the reason.
class DatabaseQueue {
public:
    /// `fileUrl` is a file URL as text ("file:///…", percent-encoded) or a
    /// plain path. Null when it cannot be opened. SQLite looks into the file
    /// only at the first statement.
    static std::unique_ptr<DatabaseQueue> open(std::string_view fileUrl);
    ~DatabaseQueue();

    void inDatabase(const std::function<void(Database&)>& block);

private:
    explicit DatabaseQueue(std::string_view fileUrl);

    Database database_;
    std::mutex mutex_;
    /// The thread inside a block, to tell a nested block from a waiting one.
    std::atomic<std::thread::id> blockThread_;
};

/// The file URL of a path, as text.
std::string fileUrl(const std::filesystem::path& path);

/// The same for a file that must be there: it is never made, not even when it
/// goes while the queue lives.
std::string existingFileUrl(const std::filesystem::path& path);

} // namespace lumora::platform
