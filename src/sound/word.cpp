// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sound/word.h"

#include "sound/endings.h"
#include "sound/exceptions.h"
#include "sound/sound_rules.h"
#include "sound/spelling.h"

namespace lumora::sound {

Sounds wordSounds(const Letters& word, Tense tense, Person person, std::u32string_view infinitive)
{
    return settled(spelledSounds(withEnding(respelled(word, infinitive), tense, person)));
}

} // namespace lumora::sound
