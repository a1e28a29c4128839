// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/base/error.h"
#include "platform/files/folder_lock.h"

#include <filesystem>

namespace lumora::platform {
class Bundle;
class CrashReporter;
class Database;
class SettingsStore;
} // namespace lumora::platform

namespace lumora::app {

struct UserData;

/// The working database in a documents directory.
std::filesystem::path workingDatabase(const std::filesystem::path& documents);

/// For other programs that work on the database: while the lock lives no start of the
/// application replaces it. Waits for one that is doing so; an error when that takes
/// too long.
platform::Result<platform::FolderLock> lockDocuments(const std::filesystem::path& documents);

/// Adds what a person put into the database. False when a statement fails: its reason
/// is the database's last error.
bool readUserRows(platform::Database& database, UserData& data);

/// Brings the working database to the program's version and carries favourites
/// and history over; records the version in the settings. Another process that
/// does so meanwhile is waited for.
///
/// An interruption at any instant, or a disk that fills, loses none of the
/// user's rows: they are in the old file, in the rescue file beside it, or in
/// the new file, and the next start goes on from there. A database that could
/// not be read to its end is kept as "verbs.db.damaged", in the place of an older
/// one, and read again at later starts.
///
/// A failure leaves the recorded version as it was. A program without a
/// version or without its database resource is broken and stops.
platform::Result<void> prepareDatabase(const std::filesystem::path& documents,
                                       const platform::Bundle& bundle,
                                       platform::SettingsStore& settings,
                                       platform::CrashReporter& crashReporter);

} // namespace lumora::app
