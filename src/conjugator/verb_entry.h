// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace lumora::conjugator {

/// Of two auxiliaries, between which the meaning does not change, the first is
/// the usual one.
enum class Auxiliary { Avoir, Etre, AvoirThenEtre, EtreThenAvoir };

/// What a line of content/verbs.tsv says of a verb's grammar.
struct VerbEntry {
    std::string infinitive;
    std::string model;
    Auxiliary auxiliary = Auxiliary::Avoir;
    /// Begins with an h (or y, u) before which nothing is elided.
    bool aspirated = false;
    bool impersonal = false;
    /// An impersonal verb that has ils and elles in figurative use.
    bool plural = false;
    /// Has a reflexive pronoun.
    bool pronominal = false;
    /// A pronominal verb with "en" behind its pronoun: s'en aller.
    bool en = false;
    bool defective = false;
    bool invariableParticiple = false;
    /// The reflexive pronoun is an indirect object: the participle does not
    /// agree with the subject.
    bool indirectPronoun = false;
};

} // namespace lumora::conjugator
