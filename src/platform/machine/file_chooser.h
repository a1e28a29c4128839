// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <functional>
#include <string>

namespace lumora::platform {

/// Which file is asked for.
struct FileQuestion {
    enum class Purpose { Save, Open };
    Purpose purpose = Purpose::Open;
    /// What it is about, in the person's words.
    std::string title;
    /// What the files are, and how their names end, without the point.
    std::string kind;
    std::string extension;
    /// What a file to save is called after, without the ending. Any text will do.
    std::string suggestedName;
};

/// Lets the person point at a file. GUI thread only.
class FileChooser {
public:
    virtual ~FileChooser() = default;
    /// `chosen` runs once, or never when the person cancels; an earlier
    /// question is forgotten. A file to save may be there already: then the
    /// person has agreed to lose it.
    virtual void choose(const FileQuestion& question,
                        std::function<void(const std::filesystem::path&)> chosen) = 0;
};

} // namespace lumora::platform
