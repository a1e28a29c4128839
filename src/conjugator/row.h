// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "conjugator/grammar.h"

#include <string>

namespace lumora::conjugator {

/// One form as it stands under its tense, or serves the search alone.
struct Row {
    Tense tense = Tense::Infinitif;
    std::string pronoun;
    std::string verb;
    bool shown = true;
};

} // namespace lumora::conjugator
