// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sound/letters.h"

namespace lumora::sound {

/// Decides what depends on the neighbouring sounds: glides, the e that falls, and the
/// vowels for which spelledSounds left a placeholder.
Sounds settled(const Sounds& sounds);

} // namespace lumora::sound
