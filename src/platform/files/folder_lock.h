// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/files/file_descriptor.h"

#include <chrono>
#include <filesystem>
#include <utility>

namespace lumora::platform {

/// Keeps other processes that ask for the same lock out of a folder, as long as
/// it lives; it ends with the process in any case and leaves no file behind.
///
/// A file system without such locks gives one that keeps nobody out.
class FolderLock {
public:
    /// Waits up to `patience` for the process that has it. An error after that,
    /// or when the folder cannot be opened.
    static Result<FolderLock> take(const std::filesystem::path& folder,
                                   std::chrono::milliseconds patience);

private:
    explicit FolderLock(FileDescriptor folder) : folder_{std::move(folder)} {}

    FileDescriptor folder_;
};

} // namespace lumora::platform
