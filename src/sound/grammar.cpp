// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sound/grammar.h"

#include <algorithm>
#include <array>
#include <utility>

namespace lumora::sound {

namespace {

constexpr std::array<std::pair<std::string_view, Tense>, 18> kTenses{{
    {"conditionnelPasse1reForme", Tense::Conditional},
    {"conditionnelPasse2eForme", Tense::PastSubjunctive},
    {"conditionnelPresent", Tense::Conditional},
    {"imperatif", Tense::Imperative},
    {"indicatifFuturAnterieur", Tense::Future},
    {"indicatifFuturSimple", Tense::Future},
    {"indicatifImparfait", Tense::Imperfect},
    {"indicatifPasseAnterieur", Tense::Past},
    {"indicatifPasseCompose", Tense::Present},
    {"indicatifPasseSimple", Tense::Past},
    {"indicatifPlusQueParfait", Tense::Imperfect},
    {"indicatifPresent", Tense::Present},
    {"infinitif", Tense::Infinitive},
    {"participe", Tense::Participle},
    {"subjonctifImparfait", Tense::PastSubjunctive},
    {"subjonctifPasse", Tense::Subjunctive},
    {"subjonctifPlusqueParfait", Tense::PastSubjunctive},
    {"subjonctifPresent", Tense::Subjunctive},
}};

/// The longer before what it begins with.
constexpr std::array<std::pair<std::string_view, Person>, 9> kSubjects{{
    {"nous", Person::Nous},
    {"vous", Person::Vous},
    {"ils", Person::Ils},
    {"elles", Person::Ils},
    {"il", Person::Il},
    {"elle", Person::Il},
    {"on", Person::Il},
    {"tu", Person::Tu},
    {"j", Person::Je},
}};

} // namespace

std::optional<Tense> tenseNamed(std::string_view name)
{
    const auto* const found = std::find_if(kTenses.begin(), kTenses.end(),
                                           [&](const auto& entry) { return entry.first == name; });
    return found == kTenses.end() ? std::nullopt : std::optional(found->second);
}

Person personOf(std::string_view pronoun)
{
    for (const std::string_view particle : {"que ", "qu'"}) {
        if (pronoun.substr(0, particle.size()) == particle) {
            pronoun.remove_prefix(particle.size());
        }
    }
    const auto* const found =
        std::find_if(kSubjects.begin(), kSubjects.end(), [&](const auto& entry) {
            return pronoun.substr(0, entry.first.size()) == entry.first;
        });
    return found == kSubjects.end() ? Person::Nobody : found->second;
}

} // namespace lumora::sound
