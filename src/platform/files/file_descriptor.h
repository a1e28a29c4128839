// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/base/error.h"

#include <filesystem>
#include <string_view>
#include <utility>

#include <unistd.h>

namespace lumora::platform {

/// The reason in errno, with the file that it is about.
Error fileError(const std::filesystem::path& file, int code);

/// An open file, closed with its scope.
class FileDescriptor {
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int number) : number_(number) {}
    FileDescriptor(FileDescriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept
    {
        std::swap(number_, other.number_);
        return *this;
    }
    ~FileDescriptor()
    {
        if (number_ >= 0) {
            ::close(number_);
        }
    }

    /// Closed on exec; `flags` as for open(2).
    static Result<FileDescriptor> open(const std::filesystem::path& file, int flags);

    int number() const { return number_; }
    /// 0, or what went wrong.
    int write(std::string_view bytes) const;
    int sync() const;
    int close();

private:
    int number_ = -1;
};

} // namespace lumora::platform
