// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sound/endings.h"

#include <string_view>

namespace lumora::sound {

namespace {

bool endsWith(const Letters& word, std::u32string_view ending)
{
    return word.size() >= ending.size() &&
           word.compare(word.size() - ending.size(), ending.size(), ending) == 0;
}

/// Puts other letters for the ending, if the word has it.
bool replaceEnding(Letters& word, std::u32string_view ending, std::u32string_view by)
{
    if (!endsWith(word, ending)) {
        return false;
    }
    word.replace(word.size() - ending.size(), ending.size(), by);
    return true;
}

/// Whether nous and vous end in -ions, -iez: in other tenses such an i is the stem's.
bool hasEndingsInI(Tense tense)
{
    switch (tense) {
    case Tense::Imperfect:
    case Tense::Conditional:
    case Tense::Subjunctive:
    case Tense::PastSubjunctive:
        return true;
    default:
        return false;
    }
}

bool isUnheardAtEnd(const Letters& word)
{
    switch (word.back()) {
    case U's':
    case U'x':
    case U't':
    case U'd':
    case U'z':
        return true;
    case U'c':
        return endsWith(word, U"nc");
    case U'p':
        return endsWith(word, U"mp");
    default:
        return false;
    }
}

/// The consonants at the end become a tail.
void cutTail(Letters& word)
{
    // il assied: the d closes the e.
    replaceEnding(word, U"ied", U"ié") || replaceEnding(word, U"ieds", U"ié");
    const auto length = word.size();
    while (word.size() > 1 && isUnheardAtEnd(word)) {
        word.pop_back();
    }
    if (word.size() < length) {
        word += kTail;
    }
}

} // namespace

Letters withEnding(Letters word, Tense tense, Person person)
{
    static const Letters kGlidingOn{said(U'j'), U'o', U'n'};
    static const Letters kGlidingE{said(U'j'), U'é'};
    static const Letters kSaidE{said(U'e')};

    if (tense == Tense::Infinitive) {
        replaceEnding(word, U"er", U"é");
        return word;
    }
    if (person == Person::Ils && replaceEnding(word, U"ent", U"e")) {
        return word;
    }
    if (person == Person::Je && (tense == Tense::Past || tense == Tense::Future) &&
        replaceEnding(word, U"ai", kSaidE)) {
        return word;
    }
    if (hasEndingsInI(tense) &&
        (replaceEnding(word, U"ions", kGlidingOn) || replaceEnding(word, U"iez", kGlidingE))) {
        return word;
    }
    if (replaceEnding(word, U"ez", U"é") || replaceEnding(word, U"es", U"e")) {
        return word;
    }
    cutTail(word);
    return word;
}

} // namespace lumora::sound
