// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "conjugator/grammar.h"
#include "sound/grammar.h"
#include "verbdb/content.h"

#include <string>
#include <vector>

namespace lumora::sounds {

/// One spelling of one simple form, alone and in its row.
struct SpokenForm {
    conjugator::Tense tense;
    sound::Person person;
    /// Without pronoun, and without "se" or "-toi".
    std::string form;
    std::string ipa;
    std::string pronoun;
    /// The row of this form alone.
    std::string rowIpa;
};

struct SpokenVerb {
    const verbdb::Verb* verb;
    std::vector<SpokenForm> forms;
    /// Of the compound rows.
    std::vector<std::string> compoundIpa;
};

/// All rows of the verb, said. The verb must outlive the result.
SpokenVerb spoken(const verbdb::Verb& verb, const conjugator::Conjugator& conjugator);

} // namespace lumora::sounds
