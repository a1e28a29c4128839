// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sound/word.h"

#include "sound/endings.h"
#include "sound/exceptions.h"
#include "sound/sound_rules.h"
#include "sound/spelling.h"

namespace lumora::sound {

Sounds wordSounds(std::string_view word, Tense tense, Person person)
{
    return settled(spelledSounds(withEnding(respelled(decoded(word)), tense, person)));
}

} // namespace lumora::sound
