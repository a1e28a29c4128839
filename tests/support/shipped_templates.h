// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>

namespace lumora::support {

/// What verbs are exported with.
inline constexpr const char* kTemplates[] = {"mustache.min.js", "export_html.mustache",
                                             "export_txt.mustache"};

inline void copyTemplates(const std::filesystem::path& from, const std::filesystem::path& to)
{
    for (const char* name : kTemplates) {
        std::filesystem::copy_file(from / name, to / name);
    }
}

} // namespace lumora::support
