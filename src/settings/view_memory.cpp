// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "settings/view_memory.h"

#include "platform/storage/settings_store.h"

#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <variant>

namespace lumora::settings {

namespace {

constexpr std::string_view kVoice = "voice";
constexpr std::string_view kCardOpen = "verb_card_open";
constexpr std::string_view kWoman = "woman";
constexpr std::string_view kMan = "man";
constexpr std::string_view kMood = "mood";
constexpr int kMoods = 4;
constexpr std::string_view kWidth = "window_width";
constexpr std::string_view kHeight = "window_height";
constexpr std::string_view kMaximized = "window_maximized";
/// No real window is larger; a larger number is damage.
constexpr std::int64_t kLongestSide = 20000;
constexpr std::string_view kMarks = "marks";

std::string_view keyOf(ViewMemory::Chip chip)
{
    return chip == ViewMemory::Chip::Common ? "common" : "irregular";
}

} // namespace

platform::Voice ViewMemory::voice() const
{
    const auto stored = store_.objectForKey(kVoice);
    const auto* name = stored ? std::get_if<std::string>(&*stored) : nullptr;
    return name != nullptr && *name == kMan ? platform::Voice::Man : platform::Voice::Woman;
}

platform::Result<void> ViewMemory::setVoice(platform::Voice voice)
{
    store_.setValue(std::string{voice == platform::Voice::Man ? kMan : kWoman}, kVoice);
    return store_.synchronize();
}

int ViewMemory::mood() const
{
    const auto mood = store_.integerForKey(kMood);
    return mood > 0 && mood < kMoods ? static_cast<int>(mood) : 0;
}

platform::Result<void> ViewMemory::setMood(int mood)
{
    store_.setValue(std::int64_t{mood}, kMood);
    return store_.synchronize();
}

std::optional<WindowSize> ViewMemory::windowSize() const
{
    const auto width = store_.integerForKey(kWidth);
    const auto height = store_.integerForKey(kHeight);
    if (width <= 0 || height <= 0 || width > kLongestSide || height > kLongestSide) {
        return std::nullopt;
    }
    return WindowSize{static_cast<int>(width), static_cast<int>(height)};
}

bool ViewMemory::windowMaximized() const
{
    return store_.boolForKey(kMaximized);
}

platform::Result<void> ViewMemory::setWindow(std::optional<WindowSize> size, bool maximized)
{
    if (size) {
        store_.setValue(std::int64_t{size->width}, kWidth);
        store_.setValue(std::int64_t{size->height}, kHeight);
    }
    store_.setValue(maximized, kMaximized);
    return store_.synchronize();
}

bool ViewMemory::marksForms() const
{
    const auto stored = store_.objectForKey(kMarks);
    const auto* marks = stored ? std::get_if<bool>(&*stored) : nullptr;
    return marks == nullptr || *marks;
}

platform::Result<void> ViewMemory::setMarksForms(bool marks)
{
    store_.setValue(marks, kMarks);
    return store_.synchronize();
}

std::optional<bool> ViewMemory::cardOpen() const
{
    return platform::boolObjectForKey(store_, kCardOpen);
}

platform::Result<void> ViewMemory::setCardOpen(bool open)
{
    store_.setValue(open, kCardOpen);
    return store_.synchronize();
}

bool ViewMemory::chip(Chip chip) const
{
    const auto stored = store_.objectForKey(keyOf(chip));
    const auto* chosen = stored ? std::get_if<bool>(&*stored) : nullptr;
    return chosen != nullptr && *chosen;
}

platform::Result<void> ViewMemory::setChip(Chip chip, bool chosen)
{
    store_.setValue(chosen, keyOf(chip));
    return store_.synchronize();
}

void reportIfNotSaved(const platform::Result<void>& kept, std::string_view what,
                      std::ostream& console)
{
    if (!kept) {
        console << "Unable to keep " << what << ": " << kept.error().message << std::endl;
    }
}

} // namespace lumora::settings
