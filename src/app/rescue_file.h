// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/base/error.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <utility>
#include <vector>

namespace lumora::app {

/// What a person put into the database: all that a new one must be given.
struct UserData {
    /// Verb ids, in the order of the rows.
    std::vector<std::int32_t> favourites;
    /// Verb id and whole seconds since 2001-01-01 00:00:00 UTC.
    std::vector<std::pair<std::int32_t, std::int32_t>> history;

    bool empty() const { return favourites.empty() && history.empty(); }
};

/// Whether there is a file; an error when the disk does not tell, which must
/// never pass for "no".
platform::Result<bool> fileExists(const std::filesystem::path& file);

/// `present` and whatever of `rescued` it lacks: a rescued favourite whose
/// verb is no favourite now, a rescued view whose verb has none as new.
UserData mergedUserData(UserData present, const UserData& rescued);

/// The user's rows on their way from one database file to the next.
///
/// Written whole and synced before the old database goes, removed when the
/// last row is in the new one. Between the two, whatever happens to the
/// program or the disk, one of the three files has every row.
class RescueFile {
public:
    explicit RescueFile(std::filesystem::path file);

    /// None when there is no file, or one that cannot be understood; such a one
    /// is put aside as `<name>.damaged`. An error when the disk does not tell.
    platform::Result<std::optional<UserData>> read() const;
    platform::Result<void> write(const UserData& data) const;
    platform::Result<void> remove() const;

private:
    std::filesystem::path file_;
};

} // namespace lumora::app
