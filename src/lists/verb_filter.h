// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/base/error.h"
#include "settings/view_memory.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <unordered_set>

namespace lumora::platform {
class Database;
class SettingsStore;
} // namespace lumora::platform

namespace lumora::lists {

/// What the list of all verbs can be narrowed to.
using VerbChip = settings::ViewMemory::Chip;

/// Which verbs of the list of all verbs show: all of them, or those of every chip
/// that is chosen. The choice is remembered from one start to the next.
class VerbFilter {
public:
    /// The store of settings::ViewMemory. Not owned.
    explicit VerbFilter(platform::SettingsStore& viewMemory);

    bool isChosen(VerbChip chip) const { return chosen_[static_cast<std::size_t>(chip)]; }
    bool isAnyChosen() const { return chosen_[0] || chosen_[1]; }
    /// Written at once; an error when the file cannot be written.
    platform::Result<void> choose(VerbChip chip, bool chosen);

    /// Reads once which verbs the chips show: the five hundred commonest, and the
    /// third group of the school grammars. An error when the database cannot be
    /// asked; then all verbs show.
    platform::Result<void> load(platform::Database& database);
    bool shows(std::int64_t verb) const;

private:
    platform::SettingsStore& viewMemory_;
    std::array<bool, 2> chosen_{};
    bool loaded_ = false;
    std::array<std::unordered_set<std::int64_t>, 2> verbs_;
};

} // namespace lumora::lists
