// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace lumora::conjugator {

/// Of two auxiliaries the first is the one that is shown.
enum class Auxiliary { Avoir, Etre, AvoirThenEtre, EtreThenAvoir };

/// What a line of content/verbs.tsv says of a verb's grammar.
struct VerbEntry {
    std::string infinitive;
    std::string model;
    Auxiliary auxiliary = Auxiliary::Avoir;
    /// Begins with an h (or y, u) before which nothing is elided.
    bool aspirated = false;
    bool impersonal = false;
    /// Exists with a reflexive pronoun only.
    bool pronominal = false;
    bool defective = false;
    bool invariableParticiple = false;
};

} // namespace lumora::conjugator
