// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/index_path.h"

#include <array>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace lumora::platform {
class Analytics;
class Bundle;
class NotificationCenter;
class SettingsStore;
} // namespace lumora::platform

namespace lumora::navigation {

/// The values that a row offers for its key.
struct OptionChooser {
    struct Choice {
        std::string title;
        std::function<void(platform::SettingsStore&)> write;
    };

    std::optional<std::string> title;
    std::vector<Choice> choices;
};

/// One row of the options: what it shows, reads and writes. A member that a row
/// has no use for is null or empty.
struct OptionRow {
    enum class Kind { Switch, Segments, Detail };
    using Settings = platform::SettingsStore;

    int section = 0;
    Kind kind = Kind::Switch;
    std::string_view labelKey{};
    std::array<std::string_view, 2> segmentKeys{};
    /// Of the store.
    std::string_view key{};
    /// Whether the switch is on, or the second segment is chosen.
    bool (*read)(const Settings&, std::string_view key) = nullptr;
    void (*write)(Settings&, std::string_view key, bool on) = nullptr;
    /// Tells those who must know at once of what was written.
    void (*tell)(platform::NotificationCenter&, platform::Analytics&, bool on) = nullptr;
    /// The text on the right; on a switch, what its label has to name.
    std::string (*detail)(const Settings&, const platform::Bundle&) = nullptr;
    OptionChooser (*chooser)(const platform::Bundle&) = nullptr;
    bool clearsHistory = false;
};

struct OptionSection {
    const char* titleKey;
    /// Where the texts have no title.
    const char* title;
    /// Empty for none.
    std::string_view footerKey;
};

std::span<const OptionSection> optionSections();

/// From top to bottom, through all sections.
std::span<const OptionRow> optionRows();

/// The row that reads and writes a key of the store; none when there is no such row.
std::optional<platform::IndexPath> pathOfOption(std::string_view key);

/// Null where there is no such row.
const OptionRow* optionRowAt(platform::IndexPath path);

} // namespace lumora::navigation
