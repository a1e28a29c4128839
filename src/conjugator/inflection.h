// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "conjugator/grammar.h"

#include <array>
#include <string_view>

namespace lumora::conjugator {

// The endings that every verb takes. A stem whose ending is marked keeps the
// mark, so that "finiss", cut before "iss", gives "fin|issais"; else the ending
// begins where the stem ends.

PersonForms imperfectOf(const Forms& stems);
PersonForms futureOf(const Forms& stems);
PersonForms conditionalOf(const Forms& stems);

/// Whether a stem ends in a vowel that decides the endings of the past.
bool isPastStem(std::string_view stem);
/// Each stem must be a past stem.
PersonForms pastOf(const Forms& stems);
PersonForms pastSubjunctiveOf(const Forms& stems);

// What is not written out is made from the present.
PersonForms imperfectFromPresent(const PersonForms& present);
PersonForms subjunctiveFromPresent(const PersonForms& present);
Forms gerundFromPresent(const PersonForms& present);
std::array<Forms, 3> imperativeFromPresent(const PersonForms& present);

/// Masculine and feminine singular, masculine and feminine plural.
std::array<Forms, 4> participlesOf(const Forms& masculine);

} // namespace lumora::conjugator
