// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "settings/view_memory.h"

#include "platform/storage/settings_store.h"

#include <string>
#include <string_view>
#include <variant>

namespace lumora::settings {

namespace {

constexpr std::string_view kVoice = "voice";
constexpr std::string_view kCardOpen = "verb_card_open";
constexpr std::string_view kWoman = "woman";
constexpr std::string_view kMan = "man";

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

std::optional<bool> ViewMemory::cardOpen() const
{
    return platform::boolObjectForKey(store_, kCardOpen);
}

platform::Result<void> ViewMemory::setCardOpen(bool open)
{
    store_.setValue(open, kCardOpen);
    return store_.synchronize();
}

} // namespace lumora::settings
