// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <functional>
#include <string>

namespace lumora::platform {

/// Which file, please?
struct FileQuestion {
    enum class Purpose { Save, Open };

    Purpose purpose = Purpose::Open;
    std::string title;
    /// What the files are, and how their names end, without the point.
    std::string kind;
    std::string extension;
    /// For saving; without a folder.
    std::string suggestedName;
};

/// Lets the person point at a file. GUI thread only.
class FileChooser {
public:
    virtual ~FileChooser() = default;
    /// `chosen` runs once, or never when the person thinks better of it; an
    /// earlier question is forgotten. A file to save may be there already:
    /// whether it may be replaced is the caller's to ask.
    virtual void choose(const FileQuestion& question,
                        std::function<void(const std::filesystem::path&)> chosen) = 0;
};

} // namespace lumora::platform
