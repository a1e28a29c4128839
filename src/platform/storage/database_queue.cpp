// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/storage/database_queue.h"

#include <sqlite3.h>

#include <cstdio>
#include <cstdlib>
#include <system_error>

namespace lumora::platform {

namespace {

/// Marks the running thread as the one inside a block.
class BlockMark {
public:
    explicit BlockMark(std::atomic<std::thread::id>& thread) : thread_(thread)
    {
        thread_ = std::this_thread::get_id();
    }
    BlockMark(const BlockMark&) = delete;
    BlockMark& operator=(const BlockMark&) = delete;
    ~BlockMark() { thread_ = std::thread::id(); }

private:
    std::atomic<std::thread::id>& thread_;
};

constexpr bool isUnreserved(char byte)
{
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') ||
           (byte >= '0' && byte <= '9') || byte == '-' || byte == '.' || byte == '_' || byte == '~';
}

} // namespace

DatabaseQueue::DatabaseQueue(std::string_view fileUrl) : database_(std::string(fileUrl)) {}

DatabaseQueue::~DatabaseQueue() = default;

std::unique_ptr<DatabaseQueue> DatabaseQueue::open(std::string_view fileUrl)
{
    // SQLite's count of its memory is not used here, and costs a lock for each
    // allocation. Refused, without harm, where SQLite is in use already.
    static const int kUncounted = sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0);
    static_cast<void>(kUncounted);
    std::unique_ptr<DatabaseQueue> queue(new DatabaseQueue(fileUrl));
    if (!queue->database_.open()) {
        return nullptr;
    }
    return queue;
}

void DatabaseQueue::inDatabase(const std::function<void(Database&)>& block)
{
    if (blockThread_ == std::this_thread::get_id()) {
        std::fputs("DatabaseQueue: a block inside a block would wait for itself\n", stderr);
        std::abort();
    }
    const std::lock_guard lock(mutex_);
    const BlockMark mark(blockThread_);
    if (!database_.isOpen()) {
        // A failure is what every statement of the block answers with.
        static_cast<void>(database_.open());
    }
    block(database_);
}

std::string fileUrl(const std::filesystem::path& path)
{
    static constexpr std::string_view kDigits = "0123456789ABCDEF";

    std::error_code error;
    const std::filesystem::path absolute = std::filesystem::absolute(path, error);
    std::string url = "file://";
    for (const char byte : (error ? path : absolute).native()) {
        if (isUnreserved(byte) || byte == '/') {
            url += byte;
        } else {
            const auto value = static_cast<unsigned char>(byte);
            url += '%';
            url += kDigits[value >> 4U];
            url += kDigits[value & 0xFU];
        }
    }
    return url;
}

std::string existingFileUrl(const std::filesystem::path& path)
{
    return fileUrl(path) + "?mode=rw";
}

} // namespace lumora::platform
