// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "conjugator/conjugator.h"

#include "conjugator/elision.h"
#include "conjugator/row_builder.h"

#include <algorithm>
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

/// The text with its ligatures opened, as a keyboard without them writes it.
std::string withoutLigature(std::string text)
{
    constexpr std::string_view kLigature = "œ";
    for (auto at = text.find(kLigature); at != std::string::npos; at = text.find(kLigature)) {
        text.replace(at, kLigature.size(), "oe");
    }
    return text;
}

/// Whether a row is one form as it is written, neither double nor bracketed.
bool isOneForm(const Row& row)
{
    return row.verb.find_first_of(",(") == std::string::npos;
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

    const auto compound = [&](Tense tense) {
        switch (tense) {
        case Tense::ConditionnelPasse1reForme:
            return builder.compoundTense(tense, &Paradigm::conditional);
        case Tense::ConditionnelPasse2eForme:
        case Tense::SubjonctifPlusqueParfait:
            return builder.compoundTense(tense, &Paradigm::pastSubjunctive);
        case Tense::Imperatif:
            return builder.pastImperative();
        case Tense::IndicatifFuturAnterieur:
            return builder.compoundTense(tense, &Paradigm::future);
        case Tense::IndicatifPasseAnterieur:
            return builder.compoundTense(tense, &Paradigm::past);
        case Tense::IndicatifPasseCompose:
            return builder.compoundTense(tense, &Paradigm::present);
        case Tense::IndicatifPlusQueParfait:
            return builder.compoundTense(tense, &Paradigm::imperfect);
        case Tense::Infinitif:
            return builder.pastOf(tense, &Paradigm::infinitive);
        case Tense::Participe:
            return builder.pastOf(tense, &Paradigm::gerund);
        case Tense::SubjonctifPasse:
            return builder.compoundTense(tense, &Paradigm::subjunctive);
        default:
            return;
        }
    };
    const auto simple = [&](Tense tense) {
        switch (tense) {
        case Tense::ConditionnelPresent:
            return builder.simpleTense(tense, verb.conditional);
        case Tense::Imperatif:
            return builder.imperative();
        case Tense::IndicatifFuturSimple:
            return builder.simpleTense(tense, verb.future);
        case Tense::IndicatifImparfait:
            return builder.simpleTense(tense, verb.imperfect);
        case Tense::IndicatifPasseSimple:
            return builder.simpleTense(tense, verb.past);
        case Tense::IndicatifPresent:
            return builder.simpleTense(tense, verb.present);
        case Tense::Infinitif:
            return builder.infinitive();
        case Tense::Participe:
            return builder.participles();
        case Tense::SubjonctifImparfait:
            return builder.simpleTense(tense, verb.pastSubjunctive);
        case Tense::SubjonctifPresent:
            return builder.simpleTense(tense, verb.subjunctive);
        default:
            return;
        }
    };

    for (std::size_t block = 0; block < kTenseNames.size(); ++block) {
        const auto tense = static_cast<Tense>(block);
        simple(tense);
        compound(tense);
    }
    auto rows = builder.take();

    // Where the circumflex stands before the ending, the whole verb has a second
    // spelling; it is found, but not shown beside every form. A verb in -aître is
    // no longer of its model then: that one tells the spellings itself.
    auto modern = entry;
    modern.infinitive = respelled(entry.infinitive);
    if (modern.infinitive != entry.infinitive &&
        models_.misfit(entry.model, modern.infinitive).empty()) {
        for (auto& row : this->rows(modern)) {
            if (isOneForm(row)) {
                row.shown = false;
                row.divisions.clear();
                rows.push_back(std::move(row));
            }
        }
    }
    if (withoutLigature(entry.infinitive) != entry.infinitive) {
        const auto count = rows.size();
        for (std::size_t i = 0; i < count; ++i) {
            if (isOneForm(rows[i])) {
                rows.push_back(
                    {rows[i].tense, rows[i].pronoun, withoutLigature(rows[i].verb), false, {}});
            }
        }
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

} // namespace lumora::conjugator
