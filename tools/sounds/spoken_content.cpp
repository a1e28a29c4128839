// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sounds/spoken_content.h"

#include "conjugator/text_table.h"
#include "sound/letters.h"
#include "sound/pronunciation.h"
#include "sound/word.h"

#include <array>

namespace lumora::sounds {

namespace {

/// "se méfier" and "méfiez-vous" without their pronoun.
std::string bareForm(std::string form)
{
    for (const std::string_view before : {"se ", "s'"}) {
        if (form.starts_with(before)) {
            form.erase(0, before.size());
        }
    }
    for (const std::string_view after : {"-toi", "-nous", "-vous"}) {
        if (form.ends_with(after)) {
            form.resize(form.size() - after.size());
        }
    }
    return form;
}

} // namespace

SpokenVerb spoken(const verbdb::Verb& verb, const conjugator::Conjugator& conjugator)
{
    SpokenVerb result{&verb, {}, {}};
    const auto& infinitive = verb.entry.infinitive;
    const auto letters = sound::decoded(infinitive);
    for (const auto& row : conjugator.rows(verb.entry)) {
        const auto typeName = conjugator::name(row.tense);
        const auto person = sound::personOf(row.pronoun);
        for (const auto& variant : conjugator::split(row.verb, ", ")) {
            auto rowIpa =
                sound::ipa({infinitive, row.pronoun, variant, typeName, verb.entry.aspirated});
            const auto form = bareForm(variant);
            if (form.find(' ') != std::string::npos) {
                result.compoundIpa.push_back(std::move(rowIpa));
                continue;
            }
            const auto sounds = sound::wordSounds(sound::decoded(form),
                                                  *sound::tenseNamed(typeName), person, letters);
            result.forms.push_back(
                {row.tense, person, form, sound::ipaOf(sounds), row.pronoun, std::move(rowIpa)});
        }
    }
    return result;
}

} // namespace lumora::sounds
