// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include <tl/expected.hpp>

namespace lumora::platform {
class DatabaseQueue;
}

/// Favourites and history as one file that a person keeps, and takes to
/// another machine.
namespace lumora::backup {

enum class Problem {
    FileNotWritten,
    FileNotRead,
    NotABackup,
    FromNewerVersion,
    Database,
};

struct Failure {
    Problem problem = Problem::Database;
    /// What the machine said; empty where the problem says it all.
    std::string detail;
};

struct SavedCounts {
    int favourites = 0;
    int history = 0;
};

struct RestoredCounts {
    /// Ids of the verbs that were no favourites before.
    std::vector<std::int64_t> favourites;
    /// Verbs with a view that is newer than what was known of them, and in the
    /// history now.
    int history = 0;
    /// Entries whose verb the database does not have, or that are no entries.
    int unknown = 0;
};

/// Writes the database's favourites and history into the file, which is
/// replaced whole or left alone. `now`: seconds since 1970-01-01 00:00:00 UTC.
tl::expected<SavedCounts, Failure> saveBackup(platform::DatabaseQueue& queue,
                                              const std::filesystem::path& file, double now);

/// Adds the file's favourites and views to the database's: nothing is removed
/// but the oldest rows of a history that has become too long. All of it or
/// nothing; a second time changes nothing. Verbs are known by id and
/// infinitive, by the infinitive alone where the id is another verb's.
tl::expected<RestoredCounts, Failure> restoreBackup(platform::DatabaseQueue& queue,
                                                    const std::filesystem::path& file, double now);

} // namespace lumora::backup
