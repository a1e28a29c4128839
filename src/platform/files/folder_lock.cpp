// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/files/folder_lock.h"

#include <cerrno>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>

namespace lumora::platform {

Result<FolderLock> FolderLock::take(const std::filesystem::path& folder,
                                    std::chrono::milliseconds patience)
{
    constexpr std::chrono::milliseconds kPause{5};

    auto descriptor = FileDescriptor::open(folder, O_RDONLY | O_DIRECTORY);
    if (!descriptor) {
        return tl::unexpected(descriptor.error());
    }
    const auto end = std::chrono::steady_clock::now() + patience;
    // Another failure than these two means that there is no such lock here, as
    // on some network drives.
    while (::flock(descriptor->number(), LOCK_EX | LOCK_NB) != 0 &&
           (errno == EWOULDBLOCK || errno == EINTR)) {
        if (std::chrono::steady_clock::now() >= end) {
            return tl::unexpected(fileError(folder, EWOULDBLOCK));
        }
        std::this_thread::sleep_for(kPause);
    }
    return FolderLock{std::move(*descriptor)};
}

} // namespace lumora::platform
