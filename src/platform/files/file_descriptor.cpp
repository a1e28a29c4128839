// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/files/file_descriptor.h"

#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>

namespace lumora::platform {

Error fileError(const std::filesystem::path& file, int code)
{
    return {file.string() + ": " + std::generic_category().message(code), code};
}

Result<FileDescriptor> FileDescriptor::open(const std::filesystem::path& file, int flags)
{
    int number = -1;
    do {
        number = ::open(file.c_str(), flags | O_CLOEXEC, S_IRUSR | S_IWUSR);
    } while (number < 0 && errno == EINTR);
    if (number < 0) {
        return tl::unexpected(fileError(file, errno));
    }
    return FileDescriptor(number);
}

int FileDescriptor::write(std::string_view bytes) const
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(number_, bytes.data(), bytes.size());
        if (written > 0) {
            bytes.remove_prefix(static_cast<std::size_t>(written));
        } else if (written == 0) {
            return EIO;
        } else if (errno != EINTR) {
            return errno;
        }
    }
    return 0;
}

int FileDescriptor::sync() const
{
    while (::fsync(number_) != 0) {
        if (errno != EINTR) {
            return errno;
        }
    }
    return 0;
}

int FileDescriptor::close()
{
    // Not repeated after EINTR: the descriptor is closed then too.
    const int result = ::close(std::exchange(number_, -1));
    return result != 0 && errno != EINTR ? errno : 0;
}

} // namespace lumora::platform
