// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sound/grammar.h"
#include "sound/letters.h"

#include <string_view>

namespace lumora::sound {

/// How one word of a row is said by itself, without liaison.
///
/// The word is one form of a verb, in lower case, without pronoun and brackets.
/// The infinitive tells surfait of surfer from that of surfaire.
Sounds wordSounds(const Letters& word, Tense tense, Person person, std::u32string_view infinitive);

} // namespace lumora::sound
