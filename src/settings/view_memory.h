// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/base/error.h"
#include "platform/machine/speech_synthesizer.h"

#include <iosfwd>
#include <optional>
#include <string_view>

namespace lumora::platform {
class SettingsStore;
}

namespace lumora::settings {

/// In device-independent pixels.
struct WindowSize {
    int width = 0;
    int height = 0;

    friend bool operator==(const WindowSize&, const WindowSize&) = default;
};

/// What the program remembers of how a person likes its screens, in a file
/// beside the settings, whose keys belong to the options screen. What is
/// missing or of no known value reads as at the first start.
class ViewMemory {
public:
    /// The store of that file. Not owned.
    explicit ViewMemory(platform::SettingsStore& store) : store_(store) {}

    /// The woman's at first.
    platform::Voice voice() const;
    /// Written at once; an error when the file cannot be written.
    platform::Result<void> setVoice(platform::Voice voice);

    /// The segment of the mood last chosen, at first the leftmost.
    int mood() const;
    platform::Result<void> setMood(int mood);

    /// Of the window before it was maximized; none at first.
    std::optional<WindowSize> windowSize() const;
    bool windowMaximized() const;
    platform::Result<void> setWindow(std::optional<WindowSize> size, bool maximized);
    /// Whether stems and endings are marked; they are at first.
    bool marksForms() const;
    platform::Result<void> setMarksForms(bool marks);
    /// Whether a verb's card shows all its lines; none before anybody chose.
    std::optional<bool> cardOpen() const;
    /// As `setVoice`.
    platform::Result<void> setCardOpen(bool open);

    /// Whether the list of all verbs is narrowed so; it is not at first.
    enum class Chip { Common, Irregular };
    bool chip(Chip chip) const;
    platform::Result<void> setChip(Chip chip, bool chosen);

private:
    platform::SettingsStore& store_;
};

/// Tells the console of a value that could not be written, and why.
void reportIfNotSaved(const platform::Result<void>& kept, std::string_view what,
                      std::ostream& console);

} // namespace lumora::settings
