// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "conjugator/conjugator.h"

#include "conjugator/elision.h"
#include "conjugator/row_builder.h"

#include <string_view>
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

std::vector<Row> Conjugator::rows(const VerbEntry& entry) const
{
    const auto verb = models_.conjugate(entry.model, entry.infinitive);
    RowBuilder builder(entry, verb);

    const auto compound = [&](Tense tense, bool etre, bool shown) {
        const auto& auxiliary = etre ? etre_ : avoir_;
        const AuxiliaryUse use{auxiliary, etre, shown};
        const auto persons = [&](const PersonForms& forms) {
            builder.compoundTense(tense, forms, use);
        };
        switch (tense) {
        case Tense::ConditionnelPasse1reForme:
            return persons(auxiliary.conditional);
        case Tense::ConditionnelPasse2eForme:
        case Tense::SubjonctifPlusqueParfait:
            return persons(auxiliary.pastSubjunctive);
        case Tense::Imperatif:
            return builder.pastImperative(use);
        case Tense::IndicatifFuturAnterieur:
            return persons(auxiliary.future);
        case Tense::IndicatifPasseAnterieur:
            return persons(auxiliary.past);
        case Tense::IndicatifPasseCompose:
            return persons(auxiliary.present);
        case Tense::IndicatifPlusQueParfait:
            return persons(auxiliary.imperfect);
        case Tense::Infinitif:
            return builder.pastOf(tense, auxiliary.infinitive, use);
        case Tense::Participe:
            return builder.pastOf(tense, auxiliary.gerund, use);
        case Tense::SubjonctifPasse:
            return persons(auxiliary.subjunctive);
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

    const bool etreShown =
        entry.auxiliary == Auxiliary::Etre || entry.auxiliary == Auxiliary::EtreThenAvoir;
    for (std::size_t block = 0; block < kTenseNames.size(); ++block) {
        const auto tense = static_cast<Tense>(block);
        simple(tense);
        compound(tense, etreShown, true);
    }
    if (entry.pronominal) {
        builder.searchRow(Tense::Infinitif, "",
                          builder.reflexive(entry.infinitive) + entry.infinitive);
    }
    if (entry.auxiliary == Auxiliary::AvoirThenEtre ||
        entry.auxiliary == Auxiliary::EtreThenAvoir) {
        for (std::size_t block = 0; block < kTenseNames.size(); ++block) {
            compound(static_cast<Tense>(block), !etreShown, false);
        }
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
                rows.push_back(std::move(row));
            }
        }
    }
    return rows;
}

} // namespace lumora::conjugator
