// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/database_preparation.h"

#include "app/rescue_file.h"
#include "platform/files/atomic_file.h"
#include "platform/machine/bundle.h"
#include "platform/machine/crash_reporter.h"
#include "platform/storage/database_queue.h"
#include "platform/storage/settings_store.h"
#include "settings/setting_keys.h"

#include <chrono>
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

/// How many unreadable databases version 1.0.0 kept, numbered from 0.
constexpr int kMostDamaged = 10;
/// Another process that prepares the database takes far less than this.
constexpr std::chrono::seconds kLongestWaitForLock{10};
/// SQLite's code for a file that another program holds.
constexpr int kBusy = 5;

/// A broken installation, not a broken file of the user's.
[[noreturn]] void stopIncomplete(const char* what)
{
    std::fprintf(stderr, "lumora: the program is not installed completely: %s\n", what);
    std::abort();
}

struct SavedData {
    UserData data;
    /// Why the reading ended early; none when it did not.
    std::optional<platform::Error> failure;
};

std::filesystem::path withSuffix(std::filesystem::path file, const char* suffix)
{
    file += suffix;
    return file;
}

bool readFavourites(Database& database, UserData& data)
{
    // The index of version 1.0.0 would give the rows in the order of the verbs.
    auto rows = database.executeQuery(
        "SELECT verbid FROM favourite NOT INDEXED WHERE verbid is not null", {});
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
    const auto queue = DatabaseQueue::open(platform::existingFileUrl(file));
    if (!queue) {
        saved.failure = platform::Error{"the file cannot be opened", 0};
        return saved;
    }
    queue->inDatabase([&](Database& database) {
        if (!readUserRows(database, saved.data)) {
            saved.failure = database.lastError();
            if (crashReporter != nullptr) {
                crashReporter->logWithFormat(
                    "An error occurred when reading migration settings: %@ (%d)",
                    {saved.failure->message, saved.failure->code});
            }
        }
        database.close();
    });
    return saved;
}

/// Inserts in order up to the first failure. Inserted rows leave `waiting`.
Result<void> insertUserData(Database& database, UserData& waiting)
{
    while (!waiting.favourites.empty()) {
        auto done = database.executeUpdate("INSERT INTO favourite(verbid) VALUES(?)",
                                           {std::int64_t{waiting.favourites.front()}});
        if (!done) {
            return done;
        }
        waiting.favourites.erase(waiting.favourites.begin());
    }
    while (!waiting.history.empty()) {
        const auto& [verb, timestamp] = waiting.history.front();
        auto done = database.executeUpdate("INSERT INTO history(verbid, timestamp) VALUES(?, ?)",
                                           {std::int64_t{verb}, std::int64_t{timestamp}});
        if (!done) {
            return done;
        }
        waiting.history.erase(waiting.history.begin());
    }
    return {};
}

Result<bool> isViewedAfter(Database& database, std::int32_t verb, std::int32_t timestamp)
{
    auto rows = database.executeQuery("SELECT _id FROM history WHERE verbid = ? AND timestamp > ?",
                                      {std::int64_t{verb}, std::int64_t{timestamp}});
    if (!rows) {
        return tl::make_unexpected(rows.error());
    }
    const bool found = rows->next();
    if (rows->failed()) {
        return tl::make_unexpected(database.lastError());
    }
    return found;
}

/// Takes out what an interrupted restore may have put in; a verb that the user
/// has viewed again since is not put back with its old time.
Result<void> takeOutEarlierRestore(Database& database, UserData& waiting)
{
    for (const auto verb : waiting.favourites) {
        auto done =
            database.executeUpdate("DELETE FROM favourite WHERE verbid=?", {std::int64_t{verb}});
        if (!done) {
            return done;
        }
    }
    for (auto entry = waiting.history.begin(); entry != waiting.history.end();) {
        const auto viewedSince = isViewedAfter(database, entry->first, entry->second);
        if (!viewedSince) {
            return tl::make_unexpected(viewedSince.error());
        }
        if (*viewedSince) {
            entry = waiting.history.erase(entry);
            continue;
        }
        auto done =
            database.executeUpdate("DELETE FROM history WHERE verbid=? AND timestamp=?",
                                   {std::int64_t{entry->first}, std::int64_t{entry->second}});
        if (!done) {
            return done;
        }
        ++entry;
    }
    return {};
}

/// Where the rows go: into the copy that has replaced an older file, into a copy
/// where there was none, or into the database that is in use already.
enum class Target { ReplacedFile, MissingFile, DatabaseInUse };

/// Puts the rows into the file and lets the rescue file go once all are in, or
/// leaves in it those that are not: what the user removes meanwhile must not
/// come back.
///
/// Where an older file was replaced the rows need not reach the disk one by one:
/// until all are there, the rescue file is kept and the settings tell the older
/// version, so that after a power cut the next start makes another copy. The
/// other targets would be taken for good ones.
void restoreUserData(const std::filesystem::path& file, UserData waiting, Target target,
                     const RescueFile& rescue, platform::CrashReporter& crashReporter)
{
    if (!fileExists(file).value_or(false)) {
        return;
    }
    const auto queue = DatabaseQueue::open(platform::existingFileUrl(file));
    if (!queue) {
        return;
    }
    bool complete = false;
    queue->inDatabase([&](Database& database) {
        Result<void> ready;
        if (target == Target::ReplacedFile) {
            ready = database.executeUpdate("PRAGMA synchronous = OFF", {});
        } else if (target == Target::DatabaseInUse) {
            ready = takeOutEarlierRestore(database, waiting);
        }
        complete = ready.and_then([&] { return insertUserData(database, waiting); }).has_value();
        if (!complete) {
            crashReporter.logWithFormat(
                "An error occurred when inserting migration settings: %@ (%d)",
                {database.lastErrorMessage(), database.lastErrorCode()});
        }
        database.close();
    });
    // The rescue file stays as it is: the next start tries again.
    if (target == Target::ReplacedFile && !platform::syncFile(file)) {
        return;
    }
    static_cast<void>(complete ? rescue.remove() : rescue.write(waiting));
}

/// The journals that belong to a database file.
constexpr const char* kJournals[] = {"-journal", "-wal"};

/// The journal goes first: beside a new database it would be played back into
/// it.
Result<void> removeDatabase(const std::filesystem::path& file)
{
    for (const char* suffix : {"-journal", "-wal", "-shm"}) {
        if (auto removed = platform::removeDurably(withSuffix(file, suffix)); !removed) {
            return removed;
        }
    }
    return platform::removeDurably(file);
}

/// The name under which an unreadable database is kept, and those of version
/// 1.0.0, which kept several.
std::filesystem::path damagedName(const std::filesystem::path& file, int number)
{
    auto name = withSuffix(file, ".damaged");
    return number == 0 ? name : withSuffix(name, ("." + std::to_string(number)).c_str());
}

/// Journals that stand alone since a database was put aside without them.
Result<void> moveJournals(const std::filesystem::path& file, const std::filesystem::path& aside)
{
    for (const char* suffix : kJournals) {
        const auto journal = withSuffix(file, suffix);
        const auto exists = fileExists(journal);
        if (!exists) {
            return tl::make_unexpected(exists.error());
        }
        if (*exists) {
            if (auto moved = platform::renameDurably(journal, withSuffix(aside, suffix)); !moved) {
                return moved;
            }
        }
    }
    return platform::removeDurably(withSuffix(file, "-shm"));
}

/// Keeps a database that could not be read, with the journals that may make it
/// readable. An older one goes: no start since could read it.
Result<void> putAside(const std::filesystem::path& file)
{
    const auto aside = damagedName(file, 0);
    return removeDatabase(aside)
        .and_then([&] { return platform::renameDurably(file, aside); })
        .and_then([&] { return moveJournals(file, aside); });
}

/// The rows of one database put aside, should it be readable now (a disk may
/// fail once and not twice). They are in the rescue file before it goes.
Result<void> rescueDamaged(const std::filesystem::path& damaged, const RescueFile& rescue,
                           std::optional<UserData>& waiting)
{
    auto aside = readUserData(damaged, nullptr);
    if (aside.failure) {
        return {};
    }
    auto all = mergedUserData(std::move(aside.data), waiting.value_or(UserData{}));
    auto written = rescue.write(all);
    if (!written) {
        return written;
    }
    waiting = std::move(all);
    return removeDatabase(damaged);
}

/// What waits beside the database to be put into it: the rows of an unfinished
/// replacement and those of files put aside.
Result<std::optional<UserData>> waitingData(const std::filesystem::path& file, bool exists,
                                            const RescueFile& rescue)
{
    auto waiting = rescue.read();
    for (int number = 0; waiting && number < kMostDamaged; ++number) {
        const auto damaged = damagedName(file, number);
        const auto there = fileExists(damaged);
        if (!there) {
            return tl::make_unexpected(there.error());
        }
        if (!*there) {
            continue;
        }
        auto ready = exists ? Result<void>{} : moveJournals(file, damaged);
        if (auto rescued = ready.and_then([&] { return rescueDamaged(damaged, rescue, *waiting); });
            !rescued) {
            return tl::make_unexpected(rescued.error());
        }
    }
    return waiting;
}

Result<void> replaceDatabase(const std::filesystem::path& file, bool exists,
                             const RescueFile& rescue, const std::optional<UserData>& waiting,
                             const std::filesystem::path& resource,
                             platform::CrashReporter& crashReporter)
{
    std::optional<SavedData> saved;
    if (exists) {
        saved = readUserData(file, &crashReporter);
        if (saved->failure && saved->failure->code == kBusy) {
            return tl::make_unexpected(*saved->failure);
        }
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
    const bool unreadable = saved && saved->failure;
    auto replaced = (unreadable ? putAside(file) : removeDatabase(file)).and_then([&] {
        return platform::renameDurably(copy, file);
    });
    if (!replaced) {
        static_cast<void>(platform::removeDurably(copy));
        return replaced;
    }

    if (saved) {
        restoreUserData(file, std::move(saved->data),
                        exists ? Target::ReplacedFile : Target::MissingFile, rescue, crashReporter);
    }
    return {};
}

} // namespace

bool readUserRows(Database& database, UserData& data)
{
    return readFavourites(database, data) && readHistory(database, data);
}

std::filesystem::path workingDatabase(const std::filesystem::path& documents)
{
    return documents / "verbs.db";
}

Result<platform::FolderLock> lockDocuments(const std::filesystem::path& documents)
{
    return platform::FolderLock::take(documents, kLongestWaitForLock);
}

Result<void> prepareDatabase(const std::filesystem::path& documents, const platform::Bundle& bundle,
                             platform::SettingsStore& settings,
                             platform::CrashReporter& crashReporter)
{
    // One start at a time; the second finds in the settings what the first did.
    const auto lock = lockDocuments(documents);
    if (!lock) {
        return tl::make_unexpected(lock.error());
    }
    settings.refresh();
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
    auto waiting = waitingData(file, *exists, rescue);

    if (installed == *version && *exists) {
        if (!waiting) {
            // The rows wait where they are; the database in use is a good one.
            crashReporter.logWithFormat(
                "An error occurred when reading migration settings: %@ (%d)",
                {waiting.error().message, waiting.error().code});
        } else if (*waiting) {
            restoreUserData(file, std::move(**waiting), Target::DatabaseInUse, rescue,
                            crashReporter);
        }
    } else {
        const auto resource = bundle.pathForResource("verbs", "db");
        if (!resource) {
            stopIncomplete("its verb database is missing");
        }
        if (!waiting) {
            return tl::make_unexpected(waiting.error());
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
