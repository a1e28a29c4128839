// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sound/letters.h"

namespace lumora::sound {

/// What the letters of a word stand for, one after the other.
///
/// Where the neighbouring sounds decide, a placeholder stands for the sound: E for e or
/// ɛ, Ø for ø or œ, ə for every e that may fall.
Sounds spelledSounds(const Letters& word);

} // namespace lumora::sound
