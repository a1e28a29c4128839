// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "conjugator/grammar.h"
#include "conjugator/paradigm.h"

#include <array>

namespace lumora::conjugator {

/// What the subject may be: vous is one or several.
enum class Number { Singular, Plural, Either };

/// The ways in which a participle agrees with the subject of être. The verb
/// must outlive it.
class Agreement {
public:
    Agreement(const Paradigm& verb, bool agrees);

    /// "allé(e)s", "épris(es)": one text for every gender.
    Forms bracketed(Number number) const;

    /// "allés", "allées".
    Forms words(Number number) const;

private:
    const std::array<Forms, 4>& forms_;
    bool agrees_;
};

} // namespace lumora::conjugator
