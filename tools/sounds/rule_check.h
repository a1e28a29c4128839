// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sounds/spoken_content.h"

#include <iosfwd>
#include <vector>

namespace lumora::sounds {

/// Holds every row against what grammar says of all verbs: how the endings of a
/// tense are said, which persons sound alike, that nothing but French sounds is
/// in a row, and where elision and liaison stand. Prints what breaks a rule.
bool followsRules(const std::vector<SpokenVerb>& verbs, std::ostream& output);

} // namespace lumora::sounds
