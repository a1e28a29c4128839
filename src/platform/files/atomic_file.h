// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/base/error.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace lumora::platform {

/// Writes `content` under a temporary name in the same folder, syncs it,
/// renames it over `file` and syncs the folder: after any interruption the
/// file holds its old content or the new one, whole. On failure the temporary
/// file is removed; one that a killed program left goes too.
Result<void> writeFileAtomically(const std::filesystem::path& file, std::string_view content);

/// Removes the temporary files of this file that programs left which ended
/// before writeFileAtomically was done.
void removeAbandonedTemporaries(const std::filesystem::path& file);

/// Copies the bytes of `from` to `temporary` and syncs them; a copy that failed
/// is removed.
Result<void> copyFileDurably(const std::filesystem::path& from,
                             const std::filesystem::path& temporary);

/// Renames and syncs the folder.
Result<void> renameDurably(const std::filesystem::path& from, const std::filesystem::path& to);

/// Brings to the disk what was written to the file without a sync.
Result<void> syncFile(const std::filesystem::path& file);

/// Removes and syncs the folder; a file that is not there is no failure.
Result<void> removeDurably(const std::filesystem::path& file);

/// The file's bytes; files over `maximumBytes` are refused.
Result<std::string> readFile(const std::filesystem::path& file,
                             std::uintmax_t maximumBytes = std::uintmax_t{64} * 1024 * 1024);

/// Appends `line` and a line feed; the file stays within `maximumBytes` by
/// losing its older half. A line longer than that half is refused.
Result<void> appendLine(const std::filesystem::path& file, std::string_view line,
                        std::size_t maximumBytes);

/// Makes the folder and those above it, readable by this user only; a folder that is
/// there stays as it is.
Result<void> makePrivateFolder(const std::filesystem::path& folder);

} // namespace lumora::platform
