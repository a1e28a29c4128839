// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lumora::conjugator {

/// The blocks of a verb, in the order in which its rows are filed.
enum class Tense {
    ConditionnelPasse1reForme,
    ConditionnelPasse2eForme,
    ConditionnelPresent,
    Imperatif,
    IndicatifFuturAnterieur,
    IndicatifFuturSimple,
    IndicatifImparfait,
    IndicatifPasseAnterieur,
    IndicatifPasseCompose,
    IndicatifPasseSimple,
    IndicatifPlusQueParfait,
    IndicatifPresent,
    Infinitif,
    Participe,
    SubjonctifImparfait,
    SubjonctifPasse,
    SubjonctifPlusqueParfait,
    SubjonctifPresent,
};

/// The value of the column "type", by Tense.
inline constexpr std::array<std::string_view, 18> kTenseNames{
    "conditionnelPasse1reForme",
    "conditionnelPasse2eForme",
    "conditionnelPresent",
    "imperatif",
    "indicatifFuturAnterieur",
    "indicatifFuturSimple",
    "indicatifImparfait",
    "indicatifPasseAnterieur",
    "indicatifPasseCompose",
    "indicatifPasseSimple",
    "indicatifPlusQueParfait",
    "indicatifPresent",
    "infinitif",
    "participe",
    "subjonctifImparfait",
    "subjonctifPasse",
    "subjonctifPlusqueParfait",
    "subjonctifPresent",
};

constexpr std::string_view name(Tense tense)
{
    return kTenseNames[static_cast<std::size_t>(tense)];
}

/// je, tu, il, nous, vous, ils.
inline constexpr std::size_t kPersons = 6;

/// One spelling of a form.
struct Form {
    static constexpr std::size_t kNoEnding = std::string::npos;

    std::string text;
    /// Where the ending begins, in bytes, as language lessons divide the form;
    /// kNoEnding when nothing in it is regular.
    std::size_t ending = kNoEnding;
};

/// The equally correct spellings of one form, the usual one first; none when
/// the verb lacks the form.
using Forms = std::vector<Form>;
using PersonForms = std::array<Forms, kPersons>;

/// Puts the form behind the others unless one is spelled like it.
void add(Forms& forms, Form form);

} // namespace lumora::conjugator
