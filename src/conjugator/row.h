// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "conjugator/grammar.h"

#include <cstddef>
#include <string>
#include <vector>

namespace lumora::conjugator {

/// How one spelling of a shown form divides into stem and ending.
struct Division {
    enum class Kind {
        /// An auxiliary and a participle, which follows the last blank.
        Compound,
        /// A simple form with nothing regular in it: je vais.
        Irregular,
        /// Its stem is the infinitive's, or the infinitive itself: parl|e, parler|ai.
        Regular,
        /// Its stem is another one: achèt|e, mange|ons, viendr|ai.
        ChangedStem,
    };

    Kind kind = Kind::Compound;
    /// In bytes, 0 where the stem stands alone: il rend.
    std::size_t endingLength = 0;
};

/// One form as it stands under its tense, or serves the search alone.
struct Row {
    Tense tense = Tense::Infinitif;
    std::string pronoun;
    std::string verb;
    bool shown = true;
    /// Of a shown row, by the spellings in it, which ", " divides.
    std::vector<Division> divisions;
};

} // namespace lumora::conjugator
