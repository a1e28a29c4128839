// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "conjugator/grammar.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace lumora::conjugator {

/// What stands before the endings of the future where it is regular: "rendr".
constexpr std::string_view withoutMuteE(std::string_view infinitive)
{
    return infinitive.ends_with('e') ? infinitive.substr(0, infinitive.size() - 1) : infinitive;
}

/// The persons of the imperative: tu, nous, vous.
inline constexpr std::array<std::size_t, 3> kCommanded{1, 3, 4};

/// Every simple form of one verb.
struct Paradigm {
    /// The persons in which the verb is used at all.
    std::array<bool, kPersons> persons{true, true, true, true, true, true};
    Forms infinitive;
    PersonForms present;
    PersonForms imperfect;
    PersonForms past;
    PersonForms future;
    PersonForms conditional;
    PersonForms subjunctive;
    PersonForms pastSubjunctive;
    /// By kCommanded.
    std::array<Forms, 3> imperative;
    Forms gerund;
    /// Masculine and feminine singular, masculine and feminine plural.
    std::array<Forms, 4> participle;
    /// A second participle that no auxiliary takes: "bénit" beside "béni".
    std::array<Forms, 4> adjective;
};

} // namespace lumora::conjugator
