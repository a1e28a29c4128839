// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string_view>

namespace lumora::sound {

/// What of a tense decides how its endings are said. A compound form counts by
/// the tense of its auxiliary.
enum class Tense {
    Present,
    Imperfect,
    Past,
    Future,
    Conditional,
    Subjunctive,
    PastSubjunctive,
    Imperative,
    Infinitive,
    Participle,
};

/// The subject; Nobody for the forms that have none.
enum class Person { Je, Tu, Il, Nous, Vous, Ils, Nobody };

/// By the name that the database has for it ("indicatifPasseCompose"); none for
/// a name that is no tense.
std::optional<Tense> tenseNamed(std::string_view name);

/// By a pronoun as it stands in a row: "je", "qu'il/elle/on", "nous nous".
Person personOf(std::string_view pronoun);

} // namespace lumora::sound
