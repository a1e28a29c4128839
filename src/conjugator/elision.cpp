// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "conjugator/elision.h"

#include "conjugator/text_table.h"

#include <algorithm>

namespace lumora::conjugator {

namespace {

bool beginsWithOneOf(std::string_view word, std::string_view letters)
{
    const auto beginnings = split(letters, " ");
    return std::any_of(beginnings.begin(), beginnings.end(),
                       [&](const std::string& letter) { return word.starts_with(letter); });
}

} // namespace

bool elides(std::string_view word, bool aspirated)
{
    if (aspirated) {
        return false;
    }
    // y is a vowel before a consonant (ypérite), a consonant before a vowel.
    if (word.starts_with('y')) {
        return !beginsWithOneOf(word.substr(1), "a e é è ê i o ô u");
    }
    return beginsWithOneOf(word, "a à â e é è ê ë i î ï o ô œ u ù û ü h");
}

std::string elided(std::string_view particle, std::string_view word, bool aspirated)
{
    if (!elides(word, aspirated)) {
        return std::string(particle) + " ";
    }
    return std::string(particle.substr(0, particle.size() - 1)) + "'";
}

} // namespace lumora::conjugator
