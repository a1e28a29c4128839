// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "conjugator/grammar.h"
#include "conjugator/paradigm.h"

#include <array>
#include <string>
#include <vector>

namespace lumora::conjugator {

/// What the subject may be: vous is one or several.
enum class Number { Singular, Plural, Either };

/// The ways in which a participle agrees with the subject of être.
class Agreement {
public:
    Agreement(const Paradigm& verb, bool agrees);

    /// "allé(e)s", "épris(es)": one text for every gender.
    std::vector<std::string> bracketed(Number number) const;

    /// "allés", "allées".
    std::vector<std::string> words(Number number) const;

private:
    /// By the order of Paradigm::participle.
    std::array<std::vector<std::string>, 4> forms_;
    bool agrees_;
};

} // namespace lumora::conjugator
