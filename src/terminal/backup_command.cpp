// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/database_preparation.h"
#include "backup/backup.h"
#include "platform/machine/clock.h"
#include "platform/storage/database_queue.h"
#include "qt/base/standard_folders.h"
#include "terminal/arguments.h"
#include "terminal/commands.h"
#include "terminal/output.h"
#include "terminal/session.h"

#include <cerrno>
#include <string>
#include <system_error>
#include <utility>

namespace lumora::terminal {

namespace {

using platform::DatabaseQueue;
using platform::Error;
using platform::Result;

/// The application's own database, which it may have open itself: SQLite's
/// locks keep the two apart.
struct WorkingDatabase {
    platform::FolderLock lock;
    std::unique_ptr<DatabaseQueue> queue;
};

Result<WorkingDatabase> openWorkingDatabase()
{
    const auto folder = qt::StandardFolders::fromEnvironment().data;
    auto lock = app::lockDocuments(folder);
    const auto file = app::workingDatabase(folder);
    std::error_code unknown;
    if (!std::filesystem::exists(file, unknown)) {
        return tl::unexpected(
            Error{"there are no favourites and no history here; start lumora once", ENOENT});
    }
    if (!lock) {
        return tl::unexpected(lock.error());
    }
    auto queue = DatabaseQueue::open(platform::existingFileUrl(file));
    if (!queue) {
        return tl::unexpected(Error{file.string() + " cannot be opened", EIO});
    }
    return WorkingDatabase{std::move(*lock), std::move(queue)};
}

Error errorOf(const backup::Failure& failure, const std::string& file)
{
    switch (failure.problem) {
    case backup::Problem::FileNotWritten:
        return {"the file cannot be written: " + failure.detail, EIO};
    case backup::Problem::FileNotRead:
        return {"the file cannot be read: " + failure.detail, EIO};
    case backup::Problem::NotABackup:
        return {file + " was not saved by Lumora, or it is damaged", EINVAL};
    case backup::Problem::FromNewerVersion:
        return {file + " comes from a newer version of Lumora", EINVAL};
    case backup::Problem::Database:
        break;
    }
    return {"favourites and history cannot be reached: " + failure.detail, EIO};
}

} // namespace

Result<void> backUp(Session& session, const Arguments& arguments, const Output& output)
{
    const auto database = openWorkingDatabase();
    if (!database) {
        return tl::unexpected(database.error());
    }
    const auto saved = backup::saveBackup(*database->queue, arguments.text,
                                          session.services().clock.secondsSince1970());
    if (!saved) {
        return tl::unexpected(errorOf(saved.error(), arguments.text));
    }
    output.stream << "favourites: " << saved->favourites
                  << ", verbs in the history: " << saved->history << '\n';
    return {};
}

Result<void> restore(Session& session, const Arguments& arguments, const Output& output)
{
    const auto database = openWorkingDatabase();
    if (!database) {
        return tl::unexpected(database.error());
    }
    const auto restored = backup::restoreBackup(*database->queue, arguments.text,
                                                session.services().clock.secondsSince1970());
    if (!restored) {
        return tl::unexpected(errorOf(restored.error(), arguments.text));
    }
    output.stream << "new favourites: " << restored->favourites.size()
                  << ", new in the history: " << restored->history;
    if (restored->unknown > 0) {
        output.stream << ", not found: " << restored->unknown;
    }
    output.stream << '\n';
    return {};
}

} // namespace lumora::terminal
