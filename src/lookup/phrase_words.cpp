// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/phrase_words.h"

#include "lookup/spelling.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

namespace lumora::lookup {

namespace {

struct Pronoun {
    std::string_view word;
    Persons persons;
};

constexpr Pronoun kSubjects[] = {
    {"je", person(1)},   {"j'", person(1)},    {"tu", person(2)},   {"il", person(3)},
    {"elle", person(3)}, {"on", person(3)},    {"ce", person(3)},   {"c'", person(3)},
    {"ça", person(3)},   {"cela", person(3)},  {"nous", person(4)}, {"vous", person(5)},
    {"ils", person(6)},  {"elles", person(6)},
};

constexpr Pronoun kReflexives[] = {
    {"me", person(1)},
    {"m'", person(1)},
    {"te", person(2)},
    {"t'", person(2)},
    {"se", person(3) | person(6)},
    {"s'", person(3) | person(6)},
    {"nous", person(4)},
    {"vous", person(5)},
};

constexpr std::string_view kQue[] = {"que", "qu'", "quoique", "quoiqu'"};
constexpr std::string_view kSi[] = {"si", "lorsque", "lorsqu'", "puisque", "puisqu'", "quand"};
constexpr std::string_view kElided[] = {"j'", "t'",  "m'",      "s'",      "n'",      "l'",    "d'",
                                        "c'", "qu'", "lorsqu'", "puisqu'", "quoiqu'", "jusqu'"};
constexpr std::string_view kJoined[] = {"je",   "tu",  "il",    "elle", "on",  "ce", "nous",
                                        "vous", "ils", "elles", "toi",  "moi", "le", "la",
                                        "les",  "lui", "leur",  "y",    "en",  "t",  "se"};
constexpr std::string_view kAdverbs[] = {
    "pas", "jamais",   "plus", "rien", "point",  "guère",   "personne", "déjà",     "bien",
    "mal", "toujours", "trop", "tout", "encore", "souvent", "beaucoup", "vraiment", "peu"};
constexpr std::string_view kObjects[] = {"me", "m'", "te", "t'",  "se",  "s'",   "nous", "vous",
                                         "le", "la", "l'", "les", "lui", "leur", "y",    "en"};
constexpr std::string_view kStressed[] = {"toi", "moi"};
constexpr std::string_view kDeterminers[] = {
    "le",    "la",    "l'",   "les",   "un",   "une",    "des",   "du",  "de",
    "d'",    "au",    "aux",  "mon",   "ma",   "mes",    "ton",   "ta",  "tes",
    "son",   "sa",    "ses",  "ce",    "cet",  "cette",  "ces",   "nos", "vos",
    "notre", "votre", "leur", "leurs", "quel", "quelle", "chaque"};
constexpr std::string_view kGrammarWords[] = {
    "tu",         "lui",   "plus",  "pas",    "point",   "en",     "y",      "sur",     "sous",
    "tout",       "tous",  "mais",  "ou",     "où",      "et",     "donc",   "or",      "ni",
    "car",        "dans",  "par",   "pour",   "avec",    "sans",   "vers",   "dont",    "moins",
    "bien",       "mal",   "entre", "contre", "pendant", "selon",  "outre",  "hors",    "mis",
    "vu",         "fi",    "rien",  "pu",     "avant",   "devant", "durant", "suivant", "cependant",
    "maintenant", "force", "on",    "sous",   "lu",      "dit"};

template <typename Words>
bool contains(const Words& words, std::string_view token)
{
    return std::find(std::begin(words), std::end(words), token) != std::end(words);
}

template <typename Table>
Persons personsIn(const Table& table, std::string_view token)
{
    const auto* const found =
        std::find_if(std::begin(table), std::end(table),
                     [&](const Pronoun& pronoun) { return pronoun.word == token; });
    return found == std::end(table) ? kAnyPerson : found->persons;
}

/// "se" for "(se)"; "allé" for "allé(e)(s)".
std::string withoutBrackets(std::string_view word)
{
    if (word.size() > 2 && word.front() == '(') {
        const auto close = word.find(')');
        return std::string{
            word.substr(1, (close == std::string_view::npos ? word.size() : close) - 1)};
    }
    return withoutAgreement(word);
}

void cutElided(std::string word, std::vector<std::string>& tokens)
{
    for (auto cut = word.find('\''); cut != std::string::npos && cut + 1 < word.size();
         cut = word.find('\'')) {
        if (!contains(kElided, word.substr(0, cut + 1))) {
            break;
        }
        tokens.push_back(word.substr(0, cut + 1));
        word.erase(0, cut + 1);
    }
    if (!word.empty()) {
        tokens.push_back(std::move(word));
    }
}

void cutWord(std::string word, std::vector<std::string>& tokens)
{
    // What hyphens join is taken from the end, "va-t'en" at the apostrophe too.
    std::vector<std::string> behind;
    for (;;) {
        const auto cut = word.find_last_of("-'");
        if (cut == std::string::npos || cut == 0 || !contains(kJoined, word.substr(cut + 1))) {
            break;
        }
        const bool elided = word[cut] == '\'';
        const auto hyphen = elided ? word.rfind('-') : cut;
        if (elided && hyphen == std::string::npos) {
            break;
        }
        behind.push_back(word.substr(cut + 1));
        if (elided) {
            behind.push_back(word.substr(hyphen + 1, cut - hyphen));
        }
        word.erase(hyphen);
    }
    cutElided(std::move(word), tokens);
    tokens.insert(tokens.end(), behind.rbegin(), behind.rend());
}

} // namespace

std::vector<std::string> tokensOf(std::string_view tidy)
{
    std::vector<std::string> tokens;
    while (!tidy.empty()) {
        const auto blank = tidy.find(' ');
        auto word = withoutBrackets(tidy.substr(0, blank));
        while (!word.empty() &&
               std::string_view{".,;:!?\""}.find(word.back()) != std::string::npos) {
            word.pop_back();
        }
        if (!word.empty() && word != "-") {
            cutWord(std::move(word), tokens);
        }
        tidy.remove_prefix(blank == std::string_view::npos ? tidy.size() : blank + 1);
    }
    return tokens;
}

Persons subjectPersons(std::string_view token)
{
    return personsIn(kSubjects, token.substr(0, token.find('/')));
}

Persons reflexivePersons(std::string_view token)
{
    return personsIn(kReflexives, token);
}

bool isQue(std::string_view token)
{
    return contains(kQue, token);
}

bool isSi(std::string_view token)
{
    return contains(kSi, token);
}

bool isNegation(std::string_view token)
{
    return token == "ne" || token == "n'";
}

bool isAdverb(std::string_view token)
{
    return contains(kAdverbs, token);
}

bool isObject(std::string_view token)
{
    return contains(kObjects, token);
}

bool isStressed(std::string_view token)
{
    return contains(kStressed, token);
}

bool isDeterminer(std::string_view token)
{
    return contains(kDeterminers, token);
}

bool isGrammarWord(std::string_view token)
{
    return contains(kGrammarWords, token) || subjectPersons(token) != kAnyPerson ||
           isObject(token) || isQue(token) || isSi(token) || isNegation(token) ||
           isDeterminer(token);
}

} // namespace lumora::lookup
