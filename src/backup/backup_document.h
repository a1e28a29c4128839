// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <tl/expected.hpp>

namespace lumora::backup {

/// A verb as a backup names it: two databases may give a verb different ids.
struct SavedVerb {
    std::optional<std::int64_t> id;
    std::string french;
};

struct SavedView {
    SavedVerb verb;
    /// Seconds with fraction since 1970-01-01 00:00:00 UTC.
    double viewed = 0;
};

/// What a person would miss on another machine.
struct BackupDocument {
    /// In the order in which they were chosen.
    std::vector<SavedVerb> favourites;
    std::vector<SavedView> history;
    /// Entries of a file that say nothing that can be understood.
    int unreadable = 0;
};

enum class DocumentProblem { NotABackup, FromNewerVersion };

/// The document as JSON text. `now`: seconds since 1970-01-01 00:00:00 UTC.
std::string textOf(const BackupDocument& document, double now);

/// Any bytes will do.
tl::expected<BackupDocument, DocumentProblem> parseDocument(std::string_view text);

} // namespace lumora::backup
