// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "conjugator/conjugation_model.h"

#include "conjugator/inflection.h"

#include <array>
#include <utility>

namespace lumora::conjugator {

namespace {

/// Every infinitive ends in one of these unless its model says otherwise.
std::string_view infinitiveEnding(std::string_view infinitive)
{
    for (const std::string_view ending : {"er", "eoir", "oir", "ir", "ïr", "re"}) {
        if (infinitive.ends_with(ending)) {
            return ending;
        }
    }
    return {};
}

bool isConsonant(char c)
{
    return c >= 'a' && c <= 'z' && std::string_view("aeiouy").find(c) == std::string_view::npos;
}

/// Where the infinitive is cut, and the consonants for which * stands.
struct Cut {
    std::string radical;
    std::string consonants;
};

std::optional<Cut> cut(std::string_view infinitive, std::string_view ends)
{
    const auto star = ends.find('*');
    const auto tail = star == std::string_view::npos ? ends : ends.substr(star + 1);
    if (!infinitive.ends_with(tail)) {
        return std::nullopt;
    }
    infinitive.remove_suffix(tail.size());
    if (star == std::string_view::npos) {
        return Cut{std::string(infinitive), {}};
    }

    auto begin = infinitive.size();
    // The u of gu and qu is no vowel.
    if (infinitive.ends_with("gu") || infinitive.ends_with("qu")) {
        begin -= 1;
    }
    while (begin > 0 && isConsonant(infinitive[begin - 1])) {
        --begin;
    }
    const auto consonants = infinitive.substr(begin);
    const auto head = ends.substr(0, star);
    if (consonants.empty() || !infinitive.substr(0, begin).ends_with(head)) {
        return std::nullopt;
    }
    return Cut{std::string(infinitive.substr(0, begin - head.size())), std::string(consonants)};
}

Form expanded(std::string_view cell, const Cut& where)
{
    Form form{where.radical};
    for (const char c : cell) {
        if (c == ConjugationModel::kEndingMark) {
            form.ending = form.text.size();
        } else if (c == '*') {
            form.text += where.consonants;
        } else if (c != '.') {
            form.text += c;
        }
    }
    return form;
}

/// Fills the paradigm of one verb, part by part: as the model writes a part
/// out, from the stem that it gives, or else from the parts filled before.
class Derivation {
public:
    Derivation(const ConjugationModel& model, std::string_view infinitive)
        : model_(model), infinitive_(infinitive)
    {}

    Paradigm paradigm()
    {
        infinitive();
        presentAndWhatFollowsIt();
        past();
        future();
        participles();
        dropUnusedPersons();
        return std::move(verb_);
    }

private:
    Forms formsOf(const ModelPart& part, std::size_t cell) const
    {
        const auto where = cut(infinitive_, part.ends).value();
        Forms forms;
        for (const auto& text : part.cells[cell]) {
            add(forms, expanded(text, where));
        }
        return forms;
    }

    template <typename Target, typename FromStem, typename Derive>
    void fill(Target& target, std::string_view key, const FromStem& fromStem, const Derive& derive)
    {
        const auto* part = model_.part(key);
        if (part == nullptr) {
            derive();
        } else if (!part->missing && part->cells.size() == target.size()) {
            for (std::size_t cell = 0; cell < target.size(); ++cell) {
                target[cell] = formsOf(*part, cell);
            }
        } else if (!part->missing) {
            fromStem(formsOf(*part, 0));
        }
    }

    /// A part that is never given as a stem.
    template <typename Target, typename Derive>
    void fill(Target& target, std::string_view key, const Derive& derive)
    {
        fill(
            target, key, [](const Forms&) {}, derive);
    }

    void infinitive()
    {
        std::array<Forms, 1> single;
        fill(single, "infinitive", [&] { single[0] = {{std::string(infinitive_)}}; });
        for (auto& form : single[0]) {
            if (form.ending == Form::kNoEnding) {
                form.ending = form.text.size() - infinitiveEnding(form.text).size();
            }
        }
        verb_.infinitive = std::move(single[0]);
    }

    void presentAndWhatFollowsIt()
    {
        const auto& present = verb_.present;
        fill(verb_.present, "present", [] {});
        fill(
            verb_.imperfect, "imperfect",
            [&](const Forms& stems) { verb_.imperfect = imperfectOf(stems); },
            [&] { verb_.imperfect = imperfectFromPresent(present); });
        fill(verb_.subjunctive, "subjunctive",
             [&] { verb_.subjunctive = subjunctiveFromPresent(present); });
        fill(verb_.imperative, "imperative",
             [&] { verb_.imperative = imperativeFromPresent(present); });
        std::array<Forms, 1> single;
        fill(single, "gerund", [&] { single[0] = gerundFromPresent(present); });
        verb_.gerund = std::move(single[0]);
    }

    void past()
    {
        Forms pastStems;
        fill(
            verb_.past, "past",
            [&](const Forms& stems) {
                pastStems = stems;
                verb_.past = pastOf(stems);
            },
            [] {});
        fill(
            verb_.pastSubjunctive, "pastSubjunctive",
            [&](const Forms& stems) { verb_.pastSubjunctive = pastSubjunctiveOf(stems); },
            [&] { verb_.pastSubjunctive = pastSubjunctiveOf(pastStems); });
    }

    void future()
    {
        Forms futureStems;
        fill(
            verb_.future, "future",
            [&](const Forms& stems) {
                futureStems = stems;
                verb_.future = futureOf(stems);
            },
            [&] {
                futureStems = {{std::string(withoutMuteE(infinitive_))}};
                verb_.future = futureOf(futureStems);
            });
        fill(
            verb_.conditional, "conditional",
            [&](const Forms& stems) { verb_.conditional = conditionalOf(stems); },
            [&] { verb_.conditional = conditionalOf(futureStems); });
    }

    void participles()
    {
        fill(
            verb_.participle, "participle",
            [&](const Forms& masculine) { verb_.participle = participlesOf(masculine); }, [] {});
        fill(verb_.adjective, "adjective", [] {});
    }

    void dropUnusedPersons()
    {
        const auto* persons = model_.part("persons");
        if (persons == nullptr || persons->missing) {
            return;
        }
        for (std::size_t person = 0; person < kPersons; ++person) {
            verb_.persons[person] = !persons->cells[person].empty();
            if (verb_.persons[person]) {
                continue;
            }
            for (auto* tense : {&verb_.present, &verb_.imperfect, &verb_.past, &verb_.future,
                                &verb_.conditional, &verb_.subjunctive, &verb_.pastSubjunctive}) {
                (*tense)[person].clear();
            }
        }
        for (std::size_t form = 0; form < kCommanded.size(); ++form) {
            if (!verb_.persons[kCommanded[form]]) {
                verb_.imperative[form].clear();
            }
        }
    }

    const ConjugationModel& model_;
    std::string_view infinitive_;
    Paradigm verb_;
};

} // namespace

const ModelPart* ConjugationModel::part(std::string_view key) const
{
    const auto found = parts.find(key);
    return found == parts.end() ? nullptr : &found->second;
}

std::optional<std::string> ConjugationModel::endNotFound(std::string_view infinitive) const
{
    if (!cut(infinitive, ends)) {
        return ends;
    }
    for (const auto& [key, part] : parts) {
        if (!part.missing && !cut(infinitive, part.ends)) {
            return part.ends;
        }
    }
    return std::nullopt;
}

Paradigm ConjugationModel::conjugate(std::string_view infinitive) const
{
    return Derivation{*this, infinitive}.paradigm();
}

} // namespace lumora::conjugator
