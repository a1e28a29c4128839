// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "lookup/phrase_words.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace lumora::lookup {

/// One way to take a text apart around a verb.
struct Phrase {
    /// Tidied, "suis" of "je suis allée"; empty for a simple form.
    std::string auxiliary;
    /// Tidied: the form, or the participle of a compound form.
    std::string word;
    /// Who the subject may be, as bits.
    Persons persons = kAnyPerson;
    /// With "que".
    bool conjunction = false;
    /// "se laver", "lave-toi".
    bool reflexive = false;
    /// "se" stands before it, which is of il and ils where it is of a person at all.
    bool se = false;
    /// With "en" beside the reflexive pronoun, as s'en aller has it.
    bool en = false;
    /// "mange-t-il": the subject stands behind.
    bool inverted = false;
    /// "vas-y", "donne-le": only an imperative takes such an object behind it.
    bool imperative = false;
    /// "y" or "en" follows, before which an imperative may have an s more.
    bool adverbFollows = false;
    /// Nothing stands beside the form.
    bool bare = true;
};

/// Says whether a folded token is a form of avoir or être.
using IsAuxiliary = std::function<bool(std::string_view)>;

/// Every way to take all tokens as one phrase, the one with most words around
/// the verb first; none when there is no such way.
std::vector<Phrase> phrasesOf(const std::vector<std::string>& tokens,
                              const IsAuxiliary& isAuxiliary);

} // namespace lumora::lookup
