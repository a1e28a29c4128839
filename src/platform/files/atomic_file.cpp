// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/files/atomic_file.h"

#include "platform/files/file_descriptor.h"

#include <array>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lumora::platform {

namespace {

constexpr std::size_t kChunkBytes = std::size_t{64} * 1024;

std::filesystem::path folderOf(const std::filesystem::path& file)
{
    return file.has_parent_path() ? file.parent_path() : std::filesystem::path(".");
}

/// Brings a rename or a removal in the folder to the disk.
Result<void> syncFolder(const std::filesystem::path& folder)
{
    const auto descriptor = FileDescriptor::open(folder, O_RDONLY | O_DIRECTORY);
    if (!descriptor) {
        return tl::unexpected(descriptor.error());
    }
    // Some file systems cannot sync a folder and say so by EINVAL.
    if (const int code = descriptor->sync(); code != 0 && code != EINVAL) {
        return tl::unexpected(fileError(folder, code));
    }
    return {};
}

/// Opens `file` empty, lets `fill` write it, syncs and closes it; removes it
/// when any of that fails.
template <typename Fill>
Result<void> writeDurably(const std::filesystem::path& file, Fill fill)
{
    auto descriptor = FileDescriptor::open(file, O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW);
    if (!descriptor) {
        return tl::unexpected(descriptor.error());
    }
    Result<void> done;
    // A leftover of an earlier run may have had other permissions.
    if (::fchmod(descriptor->number(), S_IRUSR | S_IWUSR) != 0) {
        done = tl::unexpected(fileError(file, errno));
    } else {
        done = fill(*descriptor);
    }
    if (done) {
        int code = descriptor->sync();
        if (code == 0) {
            code = descriptor->close();
        }
        if (code != 0) {
            done = tl::unexpected(fileError(file, code));
        }
    }
    if (!done) {
        ::unlink(file.c_str());
    }
    return done;
}

/// Hands the file's bytes to `take` in pieces; `take` answers an errno code.
template <typename Take>
Result<void> readPieces(const FileDescriptor& from, const std::filesystem::path& file, Take take)
{
    std::array<char, kChunkBytes> buffer; // NOLINT(cppcoreguidelines-pro-type-member-init)
    while (true) {
        const ssize_t count = ::read(from.number(), buffer.data(), buffer.size());
        if (count == 0) {
            return {};
        }
        int code = 0;
        if (count > 0) {
            code = take(std::string_view(buffer.data(), static_cast<std::size_t>(count)));
        } else if (errno != EINTR) {
            code = errno;
        }
        if (code != 0) {
            return tl::unexpected(fileError(file, code));
        }
    }
}

constexpr std::string_view kTemporarySuffix = ".tmp";

/// The process in the name: two programs saving at once must not share it.
std::string temporaryName(const std::string& file, pid_t process)
{
    return file + '.' + std::to_string(process) + std::string{kTemporarySuffix};
}

/// Whether the name is that of a temporary of `file` whose process has ended.
bool isAbandoned(const std::string& name, const std::string& file)
{
    if (!name.starts_with(file + '.') || !name.ends_with(kTemporarySuffix)) {
        return false;
    }
    pid_t process = 0;
    std::from_chars(name.data() + file.size() + 1, name.data() + name.size(), process);
    return process > 0 && name == temporaryName(file, process) && ::kill(process, 0) != 0 &&
           errno == ESRCH;
}

} // namespace

void removeAbandonedTemporaries(const std::filesystem::path& file)
{
    const std::string name = file.filename().string();
    std::error_code error;
    for (std::filesystem::directory_iterator entry{folderOf(file), error}, end;
         !error && entry != end; entry.increment(error)) {
        if (isAbandoned(entry->path().filename().string(), name)) {
            ::unlink(entry->path().c_str());
        }
    }
}

Result<void> writeFileAtomically(const std::filesystem::path& file, std::string_view content)
{
    removeAbandonedTemporaries(file);
    const std::filesystem::path temporary = temporaryName(file.string(), ::getpid());
    auto written = writeDurably(temporary, [&](const FileDescriptor& descriptor) -> Result<void> {
        if (const int code = descriptor.write(content); code != 0) {
            return tl::unexpected(fileError(temporary, code));
        }
        return {};
    });
    if (!written) {
        return written;
    }
    auto renamed = renameDurably(temporary, file);
    if (!renamed) {
        ::unlink(temporary.c_str());
    }
    return renamed;
}

Result<void> copyFileDurably(const std::filesystem::path& from,
                             const std::filesystem::path& temporary)
{
    const auto source = FileDescriptor::open(from, O_RDONLY);
    if (!source) {
        return tl::unexpected(source.error());
    }
    return writeDurably(temporary, [&](const FileDescriptor& descriptor) {
        return readPieces(*source, from,
                          [&](std::string_view piece) { return descriptor.write(piece); });
    });
}

Result<void> renameDurably(const std::filesystem::path& from, const std::filesystem::path& to)
{
    if (::rename(from.c_str(), to.c_str()) != 0) {
        return tl::unexpected(fileError(to, errno));
    }
    return syncFolder(folderOf(to));
}

Result<void> syncFile(const std::filesystem::path& file)
{
    const auto descriptor = FileDescriptor::open(file, O_RDONLY);
    if (!descriptor) {
        return tl::unexpected(descriptor.error());
    }
    if (const int code = descriptor->sync(); code != 0) {
        return tl::unexpected(fileError(file, code));
    }
    return {};
}

Result<void> removeDurably(const std::filesystem::path& file)
{
    if (::unlink(file.c_str()) != 0) {
        if (errno == ENOENT) {
            return {};
        }
        return tl::unexpected(fileError(file, errno));
    }
    return syncFolder(folderOf(file));
}

Result<std::string> readFile(const std::filesystem::path& file, std::uintmax_t maximumBytes)
{
    // Without O_NONBLOCK a pipe of that name would block the program.
    const auto descriptor = FileDescriptor::open(file, O_RDONLY | O_NONBLOCK);
    if (!descriptor) {
        return tl::unexpected(descriptor.error());
    }
    std::string content;
    const auto read = readPieces(*descriptor, file, [&](std::string_view piece) {
        if (content.size() + piece.size() > maximumBytes) {
            return EFBIG;
        }
        content += piece;
        return 0;
    });
    if (!read) {
        return tl::unexpected(read.error());
    }
    return content;
}

Result<void> appendLine(const std::filesystem::path& file, std::string_view line,
                        std::size_t maximumBytes)
{
    const std::size_t half = maximumBytes / 2;
    if (line.size() + 1 > half) {
        return tl::unexpected(fileError(file, EFBIG));
    }
    std::error_code unknown;
    const std::uintmax_t size = std::filesystem::file_size(file, unknown);
    if (!unknown && size + line.size() + 1 > maximumBytes) {
        auto content = readFile(file);
        if (!content) {
            return tl::unexpected(content.error());
        }
        // From the first whole line of the newer half.
        const std::size_t start = content->size() > half ? content->size() - half : 0;
        const std::size_t end = content->find('\n', start);
        content->erase(0, end == std::string::npos ? end : end + 1);
        if (auto cut = writeFileAtomically(file, *content); !cut) {
            return cut;
        }
    }
    const auto descriptor = FileDescriptor::open(file, O_WRONLY | O_CREAT | O_APPEND);
    if (!descriptor) {
        return tl::unexpected(descriptor.error());
    }
    if (const int code = descriptor->write(std::string(line) + '\n'); code != 0) {
        return tl::unexpected(fileError(file, code));
    }
    return {};
}

Result<void> makePrivateFolder(const std::filesystem::path& folder)
{
    std::filesystem::path made;
    for (const auto& step : folder) {
        made /= step;
        if (::mkdir(made.c_str(), S_IRWXU) != 0) {
            const int code = errno;
            std::error_code unknown;
            // Above the home folder even a folder that is there may refuse otherwise.
            if (!std::filesystem::is_directory(made, unknown)) {
                return tl::unexpected(fileError(made, code == EEXIST ? ENOTDIR : code));
            }
        }
    }
    return {};
}

} // namespace lumora::platform
