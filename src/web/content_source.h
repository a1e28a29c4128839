// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "verbdb/content.h"

#include <filesystem>
#include <optional>

namespace lumora::web {

/// The tables from which the forms are made, read when they are first needed; the list
/// of verbs does not need them.
class ContentSource {
public:
    explicit ContentSource(std::filesystem::path folder) : folder_{std::move(folder)} {}

    /// Null where the tables are missing or damaged; the console says why.
    const verbdb::Content* get();

private:
    std::filesystem::path folder_;
    bool read_ = false;
    std::optional<verbdb::Content> content_;
};

} // namespace lumora::web
