// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "conjugator/row_builder.h"

#include "conjugator/elision.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace lumora::conjugator {

namespace {

constexpr std::size_t kThirdSingular = 2;
constexpr std::size_t kThirdPlural = 5;
/// tu, nous, vous.
constexpr std::array<std::size_t, 3> kCommanded{1, 3, 4};

constexpr std::array<std::string_view, kPersons> kSubjects{"je",   "tu",   "il/elle/on",
                                                           "nous", "vous", "ils/elles"};
constexpr std::array<std::string_view, kPersons> kReflexives{"me",   "te",   "se",
                                                             "nous", "vous", "se"};
constexpr std::array<std::string_view, kPersons> kReflexivesWithEn{"m'en",    "t'en",    "s'en",
                                                                   "nous en", "vous en", "s'en"};
constexpr std::array<std::string_view, 3> kReflexiveCommands{"-toi", "-nous", "-vous"};
constexpr std::array<std::string_view, 3> kReflexiveCommandsWithEn{"-t'en", "-nous-en", "-vous-en"};

std::string joined(const Forms& forms)
{
    std::string text;
    for (const auto& form : forms) {
        text += (text.empty() ? "" : ", ") + form;
    }
    return text;
}

constexpr std::array<Number, kPersons> kNumbers{Number::Singular, Number::Singular,
                                                Number::Singular, Number::Plural,
                                                Number::Either,   Number::Plural};

/// "ai parlé", "suis allé": every auxiliary form with every participle.
Forms compounds(const Forms& auxiliaries, const Forms& participles)
{
    Forms forms;
    for (const auto& auxiliary : auxiliaries) {
        for (const auto& participle : participles) {
            forms.push_back(auxiliary);
            forms.back().append(" ").append(participle);
        }
    }
    return forms;
}

} // namespace

void RowBuilder::simpleTense(Tense tense, const PersonForms& forms)
{
    for (std::size_t person = 0; person < kPersons; ++person) {
        if (isUsed(person)) {
            addForms(tense, person, forms[person]);
        }
    }
}

void RowBuilder::imperative()
{
    if (entry_.impersonal) {
        return;
    }
    for (std::size_t i = 0; i < kCommanded.size(); ++i) {
        auto forms = verb_.imperative[i];
        if (entry_.pronominal) {
            for (auto& form : forms) {
                form += entry_.en ? kReflexiveCommandsWithEn[i] : kReflexiveCommands[i];
            }
        }
        add(Tense::Imperatif, "", forms);
    }
}

void RowBuilder::infinitive()
{
    auto forms = verb_.infinitive;
    for (auto& form : forms) {
        form.insert(0, reflexive(form));
    }
    add(Tense::Infinitif, "", forms);
}

void RowBuilder::participles()
{
    auto forms = verb_.gerund;
    for (auto& form : forms) {
        form.insert(0, reflexive(form));
    }
    add(Tense::Participe, "", forms);
    const std::size_t count = entry_.invariableParticiple ? 1 : verb_.participle.size();
    for (std::size_t form = 0; form < count; ++form) {
        auto both = verb_.participle[form];
        both.insert(both.end(), verb_.adjective[form].begin(), verb_.adjective[form].end());
        add(Tense::Participe, "", both);
    }
}

void RowBuilder::compoundTense(Tense tense, const PersonForms& auxiliary, const AuxiliaryUse& use)
{
    for (std::size_t person = 0; person < kPersons; ++person) {
        if (isUsed(person)) {
            addCompound(tense, person, auxiliary[person], kNumbers[person], use);
        }
    }
}

void RowBuilder::pastImperative(const AuxiliaryUse& use)
{
    if (entry_.impersonal || entry_.pronominal) {
        return;
    }
    for (std::size_t i = 0; i < kCommanded.size(); ++i) {
        if (isUsed(kCommanded[i]) && hasImperative()) {
            addCompound(Tense::Imperatif, kNoPerson, use.verb.imperative[i],
                        kNumbers[kCommanded[i]], use);
        }
    }
}

void RowBuilder::pastOf(Tense tense, const Forms& auxiliary, const AuxiliaryUse& use)
{
    Forms forms;
    for (const auto& form : auxiliary) {
        forms.push_back(reflexive(form) + form);
    }
    addCompound(tense, kNoPerson, forms, Number::Either, use);
}

void RowBuilder::searchRow(Tense tense, std::string pronoun, std::string verb)
{
    hidden_.push_back({tense, std::move(pronoun), std::move(verb), false});
}

std::string RowBuilder::reflexive(std::string_view word) const
{
    if (entry_.en) {
        return "s'en ";
    }
    return entry_.pronominal ? elided("se", word, entry_.aspirated) : std::string();
}

std::vector<Row> RowBuilder::take()
{
    auto rows = std::move(shown_);
    for (auto* more : {&variants_, &hidden_}) {
        std::move(more->begin(), more->end(), std::back_inserter(rows));
    }
    return rows;
}

bool RowBuilder::isUsed(std::size_t person) const
{
    return verb_.persons[person] && (!entry_.impersonal || person == kThirdSingular ||
                                     (entry_.plural && person == kThirdPlural));
}

bool RowBuilder::hasImperative() const
{
    return std::any_of(verb_.imperative.begin(), verb_.imperative.end(),
                       [](const Forms& forms) { return !forms.empty(); });
}

std::string RowBuilder::pronoun(Tense tense, std::size_t person, std::string_view word,
                                bool aspirated) const
{
    if (person == kNoPerson) {
        return {};
    }
    std::string subject(kSubjects[person]);
    if (person == kThirdSingular && entry_.impersonal) {
        subject = "il";
    } else if (person == kThirdSingular && !verb_.persons[0]) {
        // Of things alone, for which "on" cannot stand.
        subject = "il/elle";
    }
    if (entry_.en) {
        subject.append(" ").append(kReflexivesWithEn[person]);
    } else if (entry_.pronominal) {
        std::string reflexive(kReflexives[person]);
        if (reflexive.ends_with('e')) {
            reflexive = elided(reflexive, word, aspirated);
        }
        subject += " " + reflexive;
    } else if (person == 0) {
        subject = elided(subject, word, aspirated);
    }
    if (subject.ends_with(' ')) {
        subject.pop_back();
    }

    switch (tense) {
    case Tense::SubjonctifImparfait:
    case Tense::SubjonctifPasse:
    case Tense::SubjonctifPlusqueParfait:
    case Tense::SubjonctifPresent:
        return (subject.starts_with('i') ? "qu'" : "que ") + subject;
    default:
        return subject;
    }
}

void RowBuilder::addForms(Tense tense, std::size_t person, const Forms& forms)
{
    if (!forms.empty()) {
        add(tense, pronoun(tense, person, forms.front(), entry_.aspirated), forms);
    }
}

void RowBuilder::add(Tense tense, const std::string& pronoun, const Forms& forms)
{
    if (forms.empty()) {
        return;
    }
    shown_.push_back({tense, pronoun, joined(forms), true});
    if (forms.size() > 1) {
        for (const auto& form : forms) {
            variants_.push_back({tense, pronoun, form, false});
        }
    }
}

void RowBuilder::addCompound(Tense tense, std::size_t person, const Forms& auxiliary, Number number,
                             const AuxiliaryUse& use)
{
    if (auxiliary.empty() || verb_.participle[0].empty()) {
        return;
    }
    // With the impersonal il the participle never agrees.
    const Agreement agreement(verb_, use.agrees && !entry_.impersonal &&
                                         !entry_.indirectPronoun && !entry_.invariableParticiple);
    // An auxiliary is never aspirated, whatever the verb.
    const auto subject = pronoun(tense, person, auxiliary.front(), false);
    const auto texts = compounds(auxiliary, agreement.bracketed(number));
    const auto words = compounds(auxiliary, agreement.words(number));
    if (use.shown) {
        shown_.push_back({tense, subject, joined(texts), true});
    }
    if (!use.shown || texts.size() > 1 || words != texts) {
        for (const auto& word : words) {
            searchRow(tense, subject, word);
        }
    }
}

} // namespace lumora::conjugator
