// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lists/verb_filter.h"

#include "platform/storage/database.h"

#include <string_view>

namespace lumora::lists {

namespace {

constexpr std::string_view kVerbsOfChips =
    "SELECT verbid, use_class <= 2, verb_group = 3 FROM verb_facts";

} // namespace

VerbFilter::VerbFilter(platform::SettingsStore& viewMemory) : viewMemory_{viewMemory}
{
    for (std::size_t chip = 0; chip < chosen_.size(); ++chip) {
        chosen_[chip] = settings::ViewMemory{viewMemory}.chip(static_cast<VerbChip>(chip));
    }
}

platform::Result<void> VerbFilter::choose(VerbChip chip, bool chosen)
{
    chosen_[static_cast<std::size_t>(chip)] = chosen;
    return settings::ViewMemory{viewMemory_}.setChip(chip, chosen);
}

platform::Result<void> VerbFilter::load(platform::Database& database)
{
    if (loaded_) {
        return {};
    }
    auto rows = database.executeQuery(kVerbsOfChips, {});
    if (!rows) {
        return tl::unexpected(rows.error());
    }
    while (rows->next()) {
        for (std::size_t chip = 0; chip < verbs_.size(); ++chip) {
            if (rows->boolForColumn(static_cast<int>(chip) + 1)) {
                verbs_[chip].insert(rows->longForColumn(0));
            }
        }
    }
    if (rows->failed()) {
        return tl::unexpected(database.lastError());
    }
    // A database that was made a moment ago gets them later.
    loaded_ = !verbs_[0].empty();
    return {};
}

bool VerbFilter::shows(std::int64_t verb) const
{
    if (!loaded_) {
        return true;
    }
    for (std::size_t chip = 0; chip < verbs_.size(); ++chip) {
        if (chosen_[chip] && verbs_[chip].find(verb) == verbs_[chip].end()) {
            return false;
        }
    }
    return true;
}

} // namespace lumora::lists
