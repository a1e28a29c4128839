// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sound/grammar.h"
#include "sound/letters.h"

namespace lumora::sound {

/// The word with its ending written as it is said: the -ent of ils as a mute e,
/// the -ai of je as é, and consonants that are not heard as a tail.
Letters withEnding(Letters word, Tense tense, Person person);

} // namespace lumora::sound
