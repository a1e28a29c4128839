// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "conjugator/row_builder.h"

#include "conjugator/elision.h"
#include "text/pronoun.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace lumora::conjugator {

namespace {

constexpr std::size_t kThirdSingular = 2;
constexpr std::size_t kThirdPlural = 5;

constexpr std::array<std::string_view, kPersons> kSubjects{"je",   "tu",   "il/elle/on",
                                                           "nous", "vous", "ils/elles"};
constexpr std::array<std::string_view, kPersons> kReflexives{"me",   "te",   "se",
                                                             "nous", "vous", "se"};
constexpr std::array<std::string_view, kPersons> kReflexivesWithEn{"m'en",    "t'en",    "s'en",
                                                                   "nous en", "vous en", "s'en"};
constexpr std::array<std::string_view, 3> kReflexiveCommands{"-toi", "-nous", "-vous"};
constexpr std::array<std::string_view, 3> kReflexiveCommandsWithEn{"-t'en", "-nous-en", "-vous-en"};

std::string joined(const std::vector<std::string>& spellings)
{
    std::string text;
    for (const auto& spelling : spellings) {
        text += (text.empty() ? "" : ", ") + spelling;
    }
    return text;
}

constexpr std::array<Number, kPersons> kNumbers{Number::Singular, Number::Singular,
                                                Number::Singular, Number::Plural,
                                                Number::Either,   Number::Plural};

/// "ai parlé", "suis allé": every auxiliary form with every participle.
std::vector<std::string> compounds(const Forms& auxiliaries,
                                   const std::vector<std::string>& participles)
{
    std::vector<std::string> forms;
    for (const auto& auxiliary : auxiliaries) {
        for (const auto& participle : participles) {
            forms.push_back(auxiliary.text);
            forms.back().append(" ").append(participle);
        }
    }
    return forms;
}

void prepend(const std::string& text, Form& form)
{
    form.text.insert(0, text);
    form.ending += form.ending == Form::kNoEnding ? 0 : text.size();
}

} // namespace

RowBuilder::RowBuilder(const VerbEntry& entry, const Paradigm& verb,
                       std::vector<AuxiliaryUse> auxiliaries)
    : entry_(entry), verb_(verb), auxiliaries_(std::move(auxiliaries))
{
    for (const auto& [infinitive, ending] : verb.infinitive) {
        const auto stem = infinitive.substr(0, ending);
        regularStems_.insert(regularStems_.end(), {stem, reflexive(infinitive) + stem,
                                                   std::string(withoutMuteE(infinitive))});
    }
}

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
                form.text += entry_.en ? kReflexiveCommandsWithEn[i] : kReflexiveCommands[i];
            }
        }
        add(Tense::Imperatif, "", forms);
    }
}

void RowBuilder::infinitive()
{
    auto forms = verb_.infinitive;
    for (auto& form : forms) {
        prepend(reflexive(form.text), form);
    }
    add(Tense::Infinitif, "", forms);
}

void RowBuilder::participles()
{
    auto forms = verb_.gerund;
    for (auto& form : forms) {
        prepend(reflexive(form.text), form);
    }
    add(Tense::Participe, "", forms);
    const std::size_t count = entry_.invariableParticiple ? 1 : verb_.participle.size();
    for (std::size_t form = 0; form < count; ++form) {
        auto both = verb_.participle[form];
        both.insert(both.end(), verb_.adjective[form].begin(), verb_.adjective[form].end());
        add(Tense::Participe, "", both);
    }
}

void RowBuilder::compoundTense(Tense tense, PersonForms Paradigm::*helping)
{
    for (std::size_t person = 0; person < kPersons; ++person) {
        if (isUsed(person)) {
            addCompound(tense, person, kNumbers[person],
                        [&](const Paradigm& auxiliary) { return (auxiliary.*helping)[person]; });
        }
    }
}

void RowBuilder::pastImperative()
{
    if (entry_.impersonal || entry_.pronominal) {
        return;
    }
    for (std::size_t i = 0; i < kCommanded.size(); ++i) {
        if (isUsed(kCommanded[i]) && hasImperative()) {
            addCompound(Tense::Imperatif, kNoPerson, kNumbers[kCommanded[i]],
                        [&](const Paradigm& auxiliary) { return auxiliary.imperative[i]; });
        }
    }
}

void RowBuilder::pastOf(Tense tense, Forms Paradigm::*helping)
{
    addCompound(tense, kNoPerson, Number::Either, [&](const Paradigm& auxiliary) {
        auto forms = auxiliary.*helping;
        for (auto& form : forms) {
            prepend(reflexive(form.text), form);
        }
        return forms;
    });
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
        // The subject is always a thing; "on" means people.
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
        add(tense, pronoun(tense, person, forms.front().text, entry_.aspirated), forms);
    }
}

void RowBuilder::add(Tense tense, const std::string& pronoun, const Forms& forms)
{
    if (forms.empty()) {
        return;
    }
    std::vector<std::string> spellings;
    std::vector<Division> divisions;
    for (const auto& form : forms) {
        spellings.push_back(form.text);
        divisions.push_back(division(form));
    }
    shown_.push_back({tense, pronoun, joined(spellings), true, std::move(divisions)});
    if (forms.size() > 1) {
        for (const auto& spelling : spellings) {
            variants_.push_back({tense, pronoun, spelling, false, {}});
        }
    }
}

void RowBuilder::addCompound(Tense tense, std::size_t person, Number number,
                             const std::function<Forms(const Paradigm&)>& formsOf)
{
    if (verb_.participle[0].empty()) {
        return;
    }
    std::string subject;
    std::vector<std::string> texts;
    std::vector<std::string> words;
    std::vector<Row> rows;
    for (const auto& use : auxiliaries_) {
        const auto forms = formsOf(use.verb);
        if (forms.empty()) {
            continue;
        }
        // With the impersonal il the participle never agrees.
        const Agreement agreement(verb_, use.agrees && !entry_.impersonal &&
                                             !entry_.indirectPronoun &&
                                             !entry_.invariableParticiple);
        // An auxiliary is never aspirated, whatever the verb.
        const auto own = pronoun(tense, person, forms.front().text, false);
        subject = texts.empty() ? own : subject;
        const auto lead = own == subject ? std::string() : text::beforeForm(own);
        for (const auto& text : compounds(forms, agreement.bracketed(number))) {
            texts.push_back(lead + text);
        }
        for (auto& word : compounds(forms, agreement.words(number))) {
            words.push_back(word);
            rows.push_back({tense, own, std::move(word), false, {}});
        }
    }
    if (texts.empty()) {
        return;
    }
    shown_.push_back({tense, subject, joined(texts), true, std::vector<Division>(texts.size())});
    if (texts.size() > 1 || words != texts) {
        std::move(rows.begin(), rows.end(), std::back_inserter(hidden_));
    }
}

Division RowBuilder::division(const Form& form) const
{
    if (form.ending == Form::kNoEnding) {
        return {Division::Kind::Irregular};
    }
    const auto stem = std::string_view(form.text).substr(0, form.ending);
    const bool regular =
        std::find(regularStems_.begin(), regularStems_.end(), stem) != regularStems_.end();
    return {regular ? Division::Kind::Regular : Division::Kind::ChangedStem,
            form.text.size() - form.ending};
}

} // namespace lumora::conjugator
