// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "conjugator/conjugator.h"

#include "conjugator/elision.h"
#include "conjugator/row_builder.h"
#include "text/text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace lumora::conjugator {

namespace {

/// The infinitive without the circumflex that i and u lost in 1990; jeûner keeps
/// it, to differ from jeune.
std::string respelled(std::string infinitive)
{
    if (infinitive == "jeûner") {
        return infinitive;
    }
    for (const auto& [old, plain] : {std::pair("î", "i"), std::pair("û", "u")}) {
        if (const auto at = infinitive.find(old); at != std::string::npos) {
            infinitive.replace(at, std::string_view(old).size(), plain);
        }
    }
    return infinitive;
}

/// Whether a row is one form as it is written, neither double nor bracketed.
bool isOneForm(const Row& row)
{
    return row.verb.find_first_of(",(") == std::string::npos;
}

void addWithoutLigatures(std::vector<Row>& rows)
{
    const auto count = rows.size();
    for (std::size_t i = 0; i < count; ++i) {
        if (isOneForm(rows[i])) {
            rows.push_back(
                {rows[i].tense, rows[i].pronoun, text::withoutLigatures(rows[i].verb), false, {}});
        }
    }
}

/// The forms of a simple tense, or of the auxiliary in a compound one.
struct PersonTense {
    PersonForms Paradigm::*forms;
    bool compound;
};

/// By Tense; the blocks without persons have no entry.
constexpr std::array<PersonTense, kTenseNames.size()> kPersonTenses{{
    {&Paradigm::conditional, true},      // ConditionnelPasse1reForme
    {&Paradigm::pastSubjunctive, true},  // ConditionnelPasse2eForme
    {&Paradigm::conditional, false},     // ConditionnelPresent
    {},                                  // Imperatif
    {&Paradigm::future, true},           // IndicatifFuturAnterieur
    {&Paradigm::future, false},          // IndicatifFuturSimple
    {&Paradigm::imperfect, false},       // IndicatifImparfait
    {&Paradigm::past, true},             // IndicatifPasseAnterieur
    {&Paradigm::present, true},          // IndicatifPasseCompose
    {&Paradigm::past, false},            // IndicatifPasseSimple
    {&Paradigm::imperfect, true},        // IndicatifPlusQueParfait
    {&Paradigm::present, false},         // IndicatifPresent
    {},                                  // Infinitif
    {},                                  // Participe
    {&Paradigm::pastSubjunctive, false}, // SubjonctifImparfait
    {&Paradigm::subjunctive, true},      // SubjonctifPasse
    {&Paradigm::pastSubjunctive, true},  // SubjonctifPlusqueParfait
    {&Paradigm::subjunctive, false},     // SubjonctifPresent
}};

void addBlock(RowBuilder& builder, const Paradigm& verb, Tense tense)
{
    switch (tense) {
    case Tense::Imperatif:
        builder.imperative();
        builder.pastImperative();
        return;
    case Tense::Infinitif:
        builder.infinitive();
        builder.pastOf(tense, &Paradigm::infinitive);
        return;
    case Tense::Participe:
        builder.participles();
        builder.pastOf(tense, &Paradigm::gerund);
        return;
    default:
        const auto& [forms, compound] = kPersonTenses[static_cast<std::size_t>(tense)];
        if (compound) {
            builder.compoundTense(tense, forms);
        } else {
            builder.simpleTense(tense, verb.*forms);
        }
    }
}

/// A search needs each form once, whatever the tenses and persons that have it.
void dropRepeated(std::vector<Row>& rows)
{
    std::unordered_set<std::string> seen;
    rows.erase(
        std::remove_if(rows.begin(), rows.end(),
                       [&](const Row& row) { return !seen.insert(row.verb).second && !row.shown; }),
        rows.end());
}

} // namespace

Conjugator::Conjugator(ModelTable models)
    : models_(std::move(models)),
      avoir_(models_.conjugate("avoir", "avoir")),
      etre_(models_.conjugate("être", "être"))
{}

std::string Conjugator::headword(const VerbEntry& entry) const
{
    if (!entry.pronominal) {
        return entry.infinitive;
    }
    if (entry.en) {
        return entry.infinitive + " (s'en)";
    }
    return entry.infinitive + (elides(entry.infinitive, entry.aspirated) ? " (s')" : " (se)");
}

int Conjugator::group(const VerbEntry& entry) const
{
    if (entry.infinitive.ends_with("er")) {
        return entry.model == "aller" ? 3 : 1;
    }
    const auto gerund = models_.conjugate(entry.model, entry.infinitive).gerund;
    const bool issant = std::any_of(gerund.begin(), gerund.end(), [](const Form& form) {
        return form.text.ends_with("issant") || form.text.ends_with("ïssant");
    });
    const bool ir = entry.infinitive.ends_with("ir") || entry.infinitive.ends_with("ïr");
    return ir && issant ? 2 : 3;
}

std::vector<AuxiliaryUse> Conjugator::auxiliariesOf(Auxiliary auxiliary) const
{
    const AuxiliaryUse avoir{avoir_, false};
    const AuxiliaryUse etre{etre_, true};
    switch (auxiliary) {
    case Auxiliary::Etre:
        return {etre};
    case Auxiliary::AvoirThenEtre:
        return {avoir, etre};
    case Auxiliary::EtreThenAvoir:
        return {etre, avoir};
    case Auxiliary::Avoir:
        break;
    }
    return {avoir};
}

std::vector<Row> Conjugator::rows(const VerbEntry& entry) const
{
    const auto verb = models_.conjugate(entry.model, entry.infinitive);
    RowBuilder builder(entry, verb, auxiliariesOf(entry.auxiliary));
    for (std::size_t block = 0; block < kTenseNames.size(); ++block) {
        addBlock(builder, verb, static_cast<Tense>(block));
    }
    auto rows = builder.take();
    addRespelled(rows, entry);
    if (text::withoutLigatures(entry.infinitive) != entry.infinitive) {
        addWithoutLigatures(rows);
    }
    dropRepeated(rows);
    if (entry.pronominal) {
        rows.push_back({Tense::Infinitif,
                        "",
                        builder.reflexive(entry.infinitive) + entry.infinitive,
                        false,
                        {}});
    }
    return rows;
}

void Conjugator::addRespelled(std::vector<Row>& rows, const VerbEntry& entry) const
{
    auto modern = entry;
    modern.infinitive = respelled(entry.infinitive);
    if (modern.infinitive == entry.infinitive ||
        !models_.misfit(entry.model, modern.infinitive).empty()) {
        return;
    }
    for (auto& row : this->rows(modern)) {
        if (isOneForm(row)) {
            row.shown = false;
            row.divisions.clear();
            rows.push_back(std::move(row));
        }
    }
}

} // namespace lumora::conjugator
