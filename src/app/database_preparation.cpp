// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/database_preparation.h"

#include "app/rescue_file.h"
#include "platform/atomic_file.h"
#include "platform/bundle.h"
#include "platform/crash_reporter.h"
#include "platform/database_queue.h"
#include "platform/settings_store.h"
#include "settings/setting_keys.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <system_error>

namespace lumora::app {

namespace {

using platform::Database;
using platform::DatabaseQueue;
using platform::Result;

constexpr const char* kDamaged = ".damaged";

/// A broken installation, not a broken file of the user's.
[[noreturn]] void stopIncomplete(const char* what)
{
    std::fprintf(stderr, "lumora: the program is not installed completely: %s\n", what);
    std::abort();
}

struct SavedData {
    UserData data;
    /// False when a statement failed on the way.
    bool complete = true;
};

std::filesystem::path withSuffix(std::filesystem::path file, const char* suffix)
{
    file += suffix;
    return file;
}

bool readFavourites(Database& database, UserData& data)
{
    auto rows = database.executeQuery("SELECT verbid FROM favourite WHERE verbid is not null", {});
    if (!rows) {
        return false;
    }
    const int verb = rows->columnIndex("verbid");
    while (rows->next()) {
        data.favourites.push_back(static_cast<std::int32_t>(rows->longForColumn(verb)));
    }
    return !rows->failed();
}

bool readHistory(Database& database, UserData& data)
{
    auto rows = database.executeQuery("SELECT verbid, timestamp FROM history", {});
    if (!rows) {
        return false;
    }
    const int verb = rows->columnIndex("verbid");
    const int timestamp = rows->columnIndex("timestamp");
    while (rows->next()) {
        // Whole seconds: the fraction is dropped on purpose.
        data.history.emplace_back(static_cast<std::int32_t>(rows->longForColumn(verb)),
                                  static_cast<std::int32_t>(rows->longForColumn(timestamp)));
    }
    return !rows->failed();
}

/// `crashReporter` may be null for a reading that is not worth a line.
SavedData readUserData(const std::filesystem::path& file, platform::CrashReporter* crashReporter)
{
    SavedData saved;
    const auto queue = DatabaseQueue::open(platform::fileUrl(file));
    if (!queue) {
        saved.complete = false;
        return saved;
    }
    queue->inDatabase([&](Database& database) {
        if (!readFavourites(database, saved.data) || !readHistory(database, saved.data)) {
            saved.complete = false;
            if (crashReporter != nullptr) {
                crashReporter->logWithFormat(
                    "An error occurred when reading migration settings: %@ (%d)",
                    {database.lastErrorMessage(), database.lastErrorCode()});
            }
        }
        database.close();
    });
    return saved;
}

Result<void> insertUserData(Database& database, const UserData& data)
{
    for (const auto verb : data.favourites) {
        auto done =
            database.executeUpdate("INSERT INTO favourite(verbid) VALUES(?)", {std::int64_t{verb}});
        if (!done) {
            return done;
        }
    }
    for (const auto& [verb, timestamp] : data.history) {
        auto done = database.executeUpdate("INSERT INTO history(verbid, timestamp) VALUES(?, ?)",
                                           {std::int64_t{verb}, std::int64_t{timestamp}});
        if (!done) {
            return done;
        }
    }
    return {};
}

/// Takes out what an interrupted restore may have put in, and what the user
/// has viewed again since is not put back with its old time.
Result<UserData> withoutEarlierRestore(Database& database, const UserData& rescued)
{
    UserData present;
    if (!readFavourites(database, present) || !readHistory(database, present)) {
        return tl::make_unexpected(
            platform::Error{database.lastErrorMessage(), database.lastErrorCode()});
    }
    UserData missing;
    for (const auto verb : rescued.favourites) {
        auto done =
            database.executeUpdate("DELETE FROM favourite WHERE verbid=?", {std::int64_t{verb}});
        if (!done) {
            return tl::make_unexpected(done.error());
        }
        missing.favourites.push_back(verb);
    }
    for (const auto& entry : rescued.history) {
        const bool viewedSince =
            std::any_of(present.history.begin(), present.history.end(), [&](const auto& other) {
                return other.first == entry.first && other.second > entry.second;
            });
        if (viewedSince) {
            continue;
        }
        auto done = database.executeUpdate("DELETE FROM history WHERE verbid=? AND timestamp=?",
                                           {std::int64_t{entry.first}, std::int64_t{entry.second}});
        if (!done) {
            return tl::make_unexpected(done.error());
        }
        missing.history.push_back(entry);
    }
    return missing;
}

enum class Target { FreshCopy, DatabaseInUse };

/// True when every row is in the file.
bool restoreUserData(const std::filesystem::path& file, const UserData& data, Target target,
                     platform::CrashReporter& crashReporter)
{
    std::error_code ignored;
    if (!std::filesystem::exists(file, ignored)) {
        return false;
    }
    const auto queue = DatabaseQueue::open(platform::fileUrl(file));
    if (!queue) {
        return false;
    }
    bool complete = false;
    queue->inDatabase([&](Database& database) {
        auto rows = target == Target::FreshCopy ? Result<UserData>{data}
                                                : withoutEarlierRestore(database, data);
        const auto done = rows.and_then(
            [&](const UserData& missing) { return insertUserData(database, missing); });
        complete = done.has_value();
        if (!complete) {
            crashReporter.logWithFormat(
                "An error occurred when inserting migration settings: %@ (%d)",
                {database.lastErrorMessage(), database.lastErrorCode()});
        }
        database.close();
    });
    return complete;
}

/// The journal goes first: beside a new database it would be played back into
/// it.
Result<void> removeOldDatabase(const std::filesystem::path& file, bool keepAside)
{
    for (const char* suffix : {"-journal", "-wal", "-shm"}) {
        if (auto removed = platform::removeDurably(withSuffix(file, suffix)); !removed) {
            return removed;
        }
    }
    return keepAside ? platform::renameDurably(file, withSuffix(file, kDamaged))
                     : platform::removeDurably(file);
}

/// What waits beside the database to be put into it: the rows of an unfinished
/// replacement, and those of a file put aside as unreadable, should it be
/// readable now (a disk may fail once and not twice).
Result<std::optional<UserData>> waitingData(const std::filesystem::path& file,
                                            const RescueFile& rescue)
{
    return rescue.read().and_then(
        [&](std::optional<UserData> rescued) -> Result<std::optional<UserData>> {
            const auto damaged = withSuffix(file, kDamaged);
            const auto exists = fileExists(damaged);
            if (!exists) {
                return tl::make_unexpected(exists.error());
            }
            if (!*exists) {
                return rescued;
            }
            auto aside = readUserData(damaged, nullptr);
            if (!aside.complete) {
                return rescued;
            }
            auto all = mergedUserData(std::move(aside.data), rescued.value_or(UserData{}));
            // From here on the rescue file holds what the damaged one held.
            return rescue.write(all)
                .and_then([&] { return platform::removeDurably(damaged); })
                .map([&] { return std::optional<UserData>{std::move(all)}; });
        });
}

Result<void> replaceDatabase(const std::filesystem::path& file, bool exists,
                             const RescueFile& rescue, const std::optional<UserData>& waiting,
                             const std::filesystem::path& resource,
                             platform::CrashReporter& crashReporter)
{
    std::optional<SavedData> saved;
    if (exists) {
        saved = readUserData(file, &crashReporter);
    }
    if (waiting) {
        if (!saved) {
            saved.emplace();
        }
        saved->data = mergedUserData(std::move(saved->data), *waiting);
    }
    if (saved && !saved->data.empty()) {
        if (auto written = rescue.write(saved->data); !written) {
            return written;
        }
    }

    const auto copy = withSuffix(file, ".new");
    if (auto copied = platform::copyFileDurably(resource, copy); !copied) {
        return copied;
    }
    auto replaced = removeOldDatabase(file, saved && !saved->complete).and_then([&] {
        return platform::renameDurably(copy, file);
    });
    if (!replaced) {
        static_cast<void>(platform::removeDurably(copy));
        return replaced;
    }

    if (saved && restoreUserData(file, saved->data, Target::FreshCopy, crashReporter)) {
        // A rescue file that stays is met again at the next start, no harm done.
        static_cast<void>(rescue.remove());
    }
    return {};
}

/// An unfinished restore of an earlier start, finished in the database in use.
void finishRestore(const std::filesystem::path& file, const RescueFile& rescue,
                   const std::optional<UserData>& waiting, platform::CrashReporter& crashReporter)
{
    if (waiting && restoreUserData(file, *waiting, Target::DatabaseInUse, crashReporter)) {
        static_cast<void>(rescue.remove());
    }
}

} // namespace

std::filesystem::path workingDatabase(const std::filesystem::path& documents)
{
    return documents / "verbs.db";
}

Result<void> prepareDatabase(const std::filesystem::path& documents, const platform::Bundle& bundle,
                             platform::SettingsStore& settings,
                             platform::CrashReporter& crashReporter)
{
    const auto installed =
        settings.stringForKey(settings::kInstalledVersion).value_or(std::string{});
    const auto version = bundle.infoValue("CFBundleShortVersionString");
    if (!version) {
        stopIncomplete("its version is unknown");
    }

    const auto file = workingDatabase(documents);
    const RescueFile rescue{documents / "rescue.json"};
    const auto exists = fileExists(file);
    if (!exists) {
        return tl::make_unexpected(exists.error());
    }
    const auto waiting = waitingData(file, rescue);
    if (!waiting) {
        return tl::make_unexpected(waiting.error());
    }

    if (installed == *version && *exists) {
        finishRestore(file, rescue, *waiting, crashReporter);
    } else {
        const auto resource = bundle.pathForResource("verbs", "db");
        if (!resource) {
            stopIncomplete("its verb database is missing");
        }
        if (auto replaced =
                replaceDatabase(file, *exists, rescue, *waiting, *resource, crashReporter);
            !replaced) {
            return replaced;
        }
    }

    settings.setValue(*version, settings::kInstalledVersion);
    if (const auto flushed = settings.synchronize(); !flushed) {
        crashReporter.logWithFormat("Unable to save the settings: %@ (%d)",
                                    {flushed.error().message, flushed.error().code});
    }
    return {};
}

} // namespace lumora::app
