// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace lumora::lookup {

/// How a tidied word sounds, roughly: words that are said alike, or nearly so (é
/// and è), have the same key, also where a spelling breaks the rules. For a
/// comparison only, a transcription is lumora::sound's.
std::string soundKey(std::string_view tidy);

/// The same of a folded word, where an e may be é or none; and as a number that two
/// words have in common when they may sound alike.
std::string looseKey(std::string_view folded);
std::uint16_t looseSound(std::string_view folded);

} // namespace lumora::lookup
