// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sound/letters.h"

namespace lumora::sound {

/// Settles what neighbours in speech decide: glides, the e that falls, and the
/// vowels that spelledSounds leaves open.
Sounds settled(const Sounds& sounds);

} // namespace lumora::sound
