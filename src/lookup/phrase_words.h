// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The small words around a verb. All texts are tidied.
namespace lumora::lookup {

/// The persons of a table as bits, from je to ils.
using Persons = unsigned;
constexpr Persons person(int number)
{
    return 1U << static_cast<unsigned>(number);
}
inline constexpr Persons kAnyPerson = 0;

/// Cuts at blanks, behind elided words ("j'", "qu'") and before the pronouns that
/// a hyphen joins ("-t-il", "-toi"); other hyphens and apostrophes belong to
/// words ("court-circuiter"). "il/elle/on" stays one token, "(se)" loses its
/// brackets, and those of an agreement go with what they hold.
std::vector<std::string> tokensOf(std::string_view tidy);

/// The persons of a subject: of "je", "j'", "il/elle/on"; none for another word.
Persons subjectPersons(std::string_view token);
/// Those that a reflexive pronoun stands for: "me", "s'", "nous".
Persons reflexivePersons(std::string_view token);

/// "que", "quoiqu'", with which the subjunctive stands; "si", "lorsque", "quand", with
/// which it does not.
bool isQue(std::string_view token);
bool isSi(std::string_view token);
/// "ne", "n'".
bool isNegation(std::string_view token);
/// "pas", "jamais", "plus" and the short adverbs between auxiliary and participle.
bool isAdverb(std::string_view token);
/// A pronoun that is an object or an adverb: "me", "le", "lui", "y", "en".
bool isObject(std::string_view token);
/// The stressed "toi" and "moi" behind an imperative.
bool isStressed(std::string_view token);
/// What stands before nouns: "le", "une", "mes".
bool isDeterminer(std::string_view token);
/// A word of grammar that a sentence is full of, though it may be a form of a
/// verb: "tu", "plus", "lui".
bool isGrammarWord(std::string_view token);

} // namespace lumora::lookup
