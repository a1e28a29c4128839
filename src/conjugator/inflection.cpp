// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "conjugator/inflection.h"

#include <algorithm>
#include <string>
#include <utility>

namespace lumora::conjugator {

namespace {

using Endings = std::array<std::string_view, kPersons>;

struct PastEndings {
    std::string_view theme;
    Endings past;
    Endings subjunctive;
};

/// By the theme in which a stem ends, longer themes before the vowels in them.
constexpr std::array<PastEndings, 6> kPastEndings{{
    {"in",
     {"ins", "ins", "int", "înmes", "întes", "inrent"},
     {"insse", "insses", "înt", "inssions", "inssiez", "inssent"}},
    {"a",
     {"ai", "as", "a", "âmes", "âtes", "èrent"},
     {"asse", "asses", "ât", "assions", "assiez", "assent"}},
    {"i",
     {"is", "is", "it", "îmes", "îtes", "irent"},
     {"isse", "isses", "ît", "issions", "issiez", "issent"}},
    {"u",
     {"us", "us", "ut", "ûmes", "ûtes", "urent"},
     {"usse", "usses", "ût", "ussions", "ussiez", "ussent"}},
    {"ï",
     {"ïs", "ïs", "ït", "ïmes", "ïtes", "ïrent"},
     {"ïsse", "ïsses", "ït", "ïssions", "ïssiez", "ïssent"}},
    {"û",
     {"ûs", "ûs", "ût", "ûmes", "ûtes", "ûrent"},
     {"ûsse", "ûsses", "ût", "ûssions", "ûssiez", "ûssent"}},
}};

constexpr Endings kImperfectEndings{"ais", "ais", "ait", "ions", "iez", "aient"};
constexpr Endings kFutureEndings{"ai", "as", "a", "ons", "ez", "ont"};
constexpr Endings kConditionalEndings{"ais", "ais", "ait", "ions", "iez", "aient"};
constexpr Endings kSubjunctiveEndings{"e", "es", "e", "ions", "iez", "ent"};

/// The form without a last ending, for another one to be put on.
Form shortened(const Form& form, std::size_t bytes)
{
    auto text = form.text.substr(0, form.text.size() - bytes);
    const auto ending = std::min(form.ending, text.size());
    return {std::move(text), ending};
}

Forms without(const Forms& forms, std::string_view ending)
{
    Forms stems;
    for (const auto& form : forms) {
        if (form.text.ends_with(ending)) {
            add(stems, shortened(form, ending.size()));
        }
    }
    return stems;
}

/// Before e and i the signs that keep c and g soft fall away (plaça, placèrent;
/// mangea, mangèrent).
Form joinedTo(const Form& stem, std::string_view ending)
{
    auto text = stem.text;
    const bool front = ending.starts_with('e') || ending.starts_with('i') ||
                       ending.starts_with("è") || ending.starts_with("é");
    if (front && text.ends_with("ge")) {
        text.pop_back();
    } else if (front && text.ends_with("ç")) {
        text.replace(text.size() - std::string_view("ç").size(), std::string::npos, "c");
    }
    const auto begin = std::min(stem.ending, text.size());
    return {text.append(ending), begin};
}

Forms joinedTo(const Forms& stems, std::string_view ending)
{
    Forms forms;
    for (const auto& stem : stems) {
        add(forms, joinedTo(stem, ending));
    }
    return forms;
}

PersonForms joinedTo(const Forms& stems, const Endings& endings)
{
    PersonForms forms;
    for (std::size_t person = 0; person < kPersons; ++person) {
        forms[person] = joinedTo(stems, endings[person]);
    }
    return forms;
}

const PastEndings* pastEndingsOf(std::string_view stem)
{
    const auto found =
        std::find_if(kPastEndings.begin(), kPastEndings.end(),
                     [&](const PastEndings& endings) { return stem.ends_with(endings.theme); });
    return found == kPastEndings.end() ? nullptr : &*found;
}

PersonForms pastForms(const Forms& stems, Endings PastEndings::*tense)
{
    PersonForms forms;
    for (const auto& stem : stems) {
        const auto* endings = pastEndingsOf(stem.text);
        const auto bare = shortened(stem, endings->theme.size());
        for (std::size_t person = 0; person < kPersons; ++person) {
            add(forms[person], joinedTo(bare, (endings->*tense)[person]));
        }
    }
    return forms;
}

/// nous and vous take the stem of the present.
PersonForms fromPresent(const PersonForms& present, const Endings& endings)
{
    const auto nous = without(present[3], "ons");
    auto vous = without(present[4], "ez");
    if (vous.empty()) {
        vous = nous; // vous faites, vous dites
    }
    auto forms = joinedTo(nous, endings);
    forms[3] = joinedTo(vous, endings[3]);
    forms[4] = joinedTo(vous, endings[4]);
    return forms;
}

} // namespace

void add(Forms& forms, Form form)
{
    if (std::none_of(forms.begin(), forms.end(),
                     [&](const Form& other) { return other.text == form.text; })) {
        forms.push_back(std::move(form));
    }
}

PersonForms imperfectOf(const Forms& stems)
{
    return joinedTo(stems, kImperfectEndings);
}

PersonForms futureOf(const Forms& stems)
{
    return joinedTo(stems, kFutureEndings);
}

PersonForms conditionalOf(const Forms& stems)
{
    return joinedTo(stems, kConditionalEndings);
}

bool isPastStem(std::string_view stem)
{
    return pastEndingsOf(stem) != nullptr;
}

PersonForms pastOf(const Forms& stems)
{
    return pastForms(stems, &PastEndings::past);
}

PersonForms pastSubjunctiveOf(const Forms& stems)
{
    return pastForms(stems, &PastEndings::subjunctive);
}

PersonForms imperfectFromPresent(const PersonForms& present)
{
    return fromPresent(present, kImperfectEndings);
}

PersonForms subjunctiveFromPresent(const PersonForms& present)
{
    auto forms = fromPresent(present, kSubjunctiveEndings);
    for (const std::size_t person : {0U, 1U, 2U, 5U}) {
        forms[person] = joinedTo(without(present[5], "ent"), kSubjunctiveEndings[person]);
    }
    return forms;
}

Forms gerundFromPresent(const PersonForms& present)
{
    return joinedTo(without(present[3], "ons"), "ant");
}

std::array<Forms, 3> imperativeFromPresent(const PersonForms& present)
{
    Forms ofTu;
    for (const auto& form : present[1]) {
        add(ofTu, form.text.ends_with("es")
                      ? Form{form.text.substr(0, form.text.size() - 1), form.ending}
                      : form);
    }
    return {ofTu, present[3], present[4]};
}

std::array<Forms, 4> participlesOf(const Forms& masculine)
{
    constexpr std::array<std::string_view, 4> kAgreement{"", "e", "s", "es"};

    std::array<Forms, 4> participles;
    for (std::size_t form = 0; form < kAgreement.size(); ++form) {
        for (const auto& [text, ending] : masculine) {
            // A participle in -s keeps it in the plural: pris, prises.
            const bool keeps = text.ends_with('s') && form == 2;
            add(participles[form], {text + std::string(keeps ? "" : kAgreement[form]), ending});
        }
    }
    return participles;
}

} // namespace lumora::conjugator
