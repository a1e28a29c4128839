// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lumora::qt {

/// The phonemes of the engine's French voice, by the names under which it takes
/// them, of a word in IPA. None where the voice lacks one of its sounds, and of
/// nothing.
///
/// The last vowel but ə is stressed in words of several such syllables and in the
/// last word before a pause. With less the voice has no melody.
std::optional<std::string> espeakPhonemes(std::string_view ipa, bool endsGroup);

} // namespace lumora::qt
