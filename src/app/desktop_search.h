// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/tense_table.h"
#include "lookup/lookup.h"
#include "platform/base/error.h"
#include "platform/storage/database_queue.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lumora::platform {
class Bundle;
class Device;
class SettingsStore;
} // namespace lumora::platform

namespace lumora::app {

/// A verb or one of its forms, as the desktop's own search shows it.
struct DesktopSearchResult {
    /// Tells the verb and the text that was typed; holds as long as the database.
    std::string id;
    /// "aller – Present conditional, nous", or the verb's name alone.
    std::string title;
    /// What the verb means; empty where there is no translation.
    std::string meaning;
    std::int64_t verb = -1;
    /// Where the form stands; none for the verb as a whole.
    std::optional<data::FormPlace> place;
};

/// What the desktop's search finds here. People type anything there, so only names
/// of verbs and their forms count, as written or without accents, from three letters
/// on: no meanings and no guesses.
///
/// Reads the database that is shipped, from the first search on.
class DesktopSearch {
public:
    /// What is handed over must outlive the object.
    DesktopSearch(std::filesystem::path database, const platform::Bundle& bundle,
                  const platform::Device& device);

    /// The best first, a handful at most. An error when the database cannot be read.
    platform::Result<std::vector<DesktopSearchResult>>
    search(std::string_view text, const platform::SettingsStore& settings);

    /// The result of that id; none for an id that no search has given.
    platform::Result<std::optional<DesktopSearchResult>>
    result(std::string_view id, const platform::SettingsStore& settings);

private:
    platform::Result<DesktopSearchResult> resultOf(const lookup::Reading& reading,
                                                   std::string_view text,
                                                   const platform::SettingsStore& settings,
                                                   platform::Database& database) const;
    std::string titleOf(const lookup::Reading& reading,
                        const platform::SettingsStore& settings) const;

    std::filesystem::path file_;
    const platform::Bundle& bundle_;
    const platform::Device& device_;
    std::unique_ptr<platform::DatabaseQueue> queue_;
    lookup::Lookup lookup_;
};

} // namespace lumora::app
