// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/tense_table.h"

#include "platform/machine/bundle.h"
#include "platform/storage/settings_store.h"
#include "settings/setting_keys.h"

namespace lumora::data {

constexpr std::array<TenseField, 18> kTenses{{
    {"conditionnelPasse1reForme", &Verb::conditionnelPasse1reForme},
    {"conditionnelPasse2eForme", &Verb::conditionnelPasse2eForme},
    {"conditionnelPresent", &Verb::conditionnelPresent},
    {"imperatif", &Verb::imperatif},
    {"indicatifFuturAnterieur", &Verb::indicatifFuturAnterieur},
    {"indicatifFuturSimple", &Verb::indicatifFuturSimple},
    {"indicatifImparfait", &Verb::indicatifImparfait},
    {"indicatifPasseAnterieur", &Verb::indicatifPasseAnterieur},
    {"indicatifPasseCompose", &Verb::indicatifPasseCompose},
    {"indicatifPasseSimple", &Verb::indicatifPasseSimple},
    {"indicatifPlusQueParfait", &Verb::indicatifPlusQueParfait},
    {"indicatifPresent", &Verb::indicatifPresent},
    {"infinitif", &Verb::infinitif},
    {"participe", &Verb::participe},
    {"subjonctifImparfait", &Verb::subjonctifImparfait},
    {"subjonctifPasse", &Verb::subjonctifPasse},
    {"subjonctifPlusqueParfait", &Verb::subjonctifPlusqueParfait},
    {"subjonctifPresent", &Verb::subjonctifPresent},
}};

const std::array<std::string_view, kMoodCount> kMoodTitleKeys{
    "type.indicative.full", "type.subjunctive.full", "type.conditional.full", "type.other.full"};

namespace {

/// Done by the compiler, so that a misspelt identifier does not build.
consteval TenseField tenseNamed(std::string_view identifier)
{
    std::size_t tense = 0;
    while (kTenses.at(tense).identifier != identifier) {
        ++tense;
    }
    return kTenses.at(tense);
}

constexpr TenseBlock kIndicative[] = {
    {tenseNamed("indicatifPresent"), "tense.ind.present"},
    {tenseNamed("indicatifPasseCompose"), "tense.ind.presentperfect"},
    {tenseNamed("indicatifImparfait"), "tense.ind.imperfect"},
    {tenseNamed("indicatifPlusQueParfait"), "tense.ind.pluperfect"},
    {tenseNamed("indicatifFuturSimple"), "tense.ind.future"},
    {tenseNamed("indicatifFuturAnterieur"), "tense.ind.pastfuture"},
    {tenseNamed("indicatifPasseSimple"), "tense.ind.simplepast"},
    {tenseNamed("indicatifPasseAnterieur"), "tense.ind.pastperfect"},
};

constexpr TenseBlock kSubjunctive[] = {
    {tenseNamed("subjonctifPresent"), "tense.sub.present"},
    {tenseNamed("subjonctifPasse"), "tense.sub.past"},
    {tenseNamed("subjonctifImparfait"), "tense.sub.imperfect"},
    {tenseNamed("subjonctifPlusqueParfait"), "tense.sub.pluperfect"},
};

constexpr TenseBlock kConditional[] = {
    {tenseNamed("conditionnelPresent"), "tense.con.present"},
    {tenseNamed("conditionnelPasse1reForme"), "tense.con.firstpast"},
    {tenseNamed("conditionnelPasse2eForme"), "tense.con.secondpast"},
};

constexpr TenseBlock kOther[] = {
    {tenseNamed("imperatif"), "tense.other.imperative"},
    {tenseNamed("participe"), "tense.other.participle"},
};

} // namespace

std::span<const TenseBlock> blocksOfSegment(int segment)
{
    switch (segment) {
    case static_cast<int>(Mood::Indicative):
        return kIndicative;
    case static_cast<int>(Mood::Subjunctive):
        return kSubjunctive;
    case static_cast<int>(Mood::Conditional):
        return kConditional;
    case static_cast<int>(Mood::Other):
        return kOther;
    default:
        return {};
    }
}

const TenseBlock* blockAt(int segment, int position)
{
    const auto blocks = blocksOfSegment(segment);
    const bool isThere = position >= 0 && static_cast<std::size_t>(position) < blocks.size();
    return isThere ? &blocks[static_cast<std::size_t>(position)] : nullptr;
}

std::optional<TensePosition> positionOfTense(std::string_view identifier)
{
    for (int segment = 0; segment < kMoodCount; ++segment) {
        const auto blocks = blocksOfSegment(segment);
        for (std::size_t block = 0; block < blocks.size(); ++block) {
            if (blocks[block].tense.identifier == identifier) {
                return TensePosition{segment, block};
            }
        }
    }
    return std::nullopt;
}

std::string_view analyticsNameOfSegment(int segment)
{
    static constexpr std::string_view kNames[] = {"CONJUGATIONS_IND", "CONJUGATIONS_SUB",
                                                  "CONJUGATIONS_CON", "CONJUGATIONS_OTHER"};
    return segment >= 0 && segment < kMoodCount ? kNames[segment] : "CONJUGATIONS_NA";
}

std::string tenseTitle(std::string_view titleKey, const platform::Bundle& bundle,
                       const platform::SettingsStore& settings)
{
    if (settings.boolForKey(settings::kShowTranslated)) {
        return platform::localizedString(bundle, std::string{titleKey} + "_french");
    }
    return platform::localizedString(bundle, titleKey);
}

} // namespace lumora::data
