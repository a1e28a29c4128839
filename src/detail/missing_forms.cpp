// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "detail/missing_forms.h"

#include "data/tense_table.h"
#include "data/verb.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <set>

namespace lumora::detail {

namespace {

using sound::Person;
using Persons = std::set<Person>;

constexpr std::array<std::string_view, 6> kPersonNames{"je", "tu", "il", "nous", "vous", "ils"};

Persons personsIn(const data::ConjugationList& forms)
{
    Persons persons;
    for (const auto& form : forms) {
        persons.insert(sound::personOf(form->pronoun));
    }
    persons.erase(Person::Nobody);
    return persons;
}

Persons personsOf(const data::Verb& verb)
{
    Persons persons;
    for (const auto& tense : data::kTenses) {
        persons.merge(personsIn(verb.*tense.forms));
    }
    return persons;
}

std::string named(const std::vector<Person>& persons)
{
    std::string text;
    for (const auto person : persons) {
        text += text.empty() ? "" : ", ";
        text += kPersonNames.at(static_cast<std::size_t>(person));
    }
    return text;
}

void append(std::string& list, const std::string& item)
{
    list += (list.empty() ? "" : ", ") + item;
}

} // namespace

MissingForms missingForms(const data::Verb& verb)
{
    MissingForms missing;
    const auto all = personsOf(verb);
    for (int segment = 0; segment < data::kMoodCount; ++segment) {
        for (const auto& block : data::blocksOfSegment(segment)) {
            const auto& forms = verb.*block.tense.forms;
            if (forms.empty()) {
                missing.tenses.push_back({block.titleKey, {}});
                continue;
            }
            missing.usedTitleKeys.push_back(block.titleKey);
            const auto here = personsIn(forms);
            std::vector<Person> lacking;
            std::set_difference(all.begin(), all.end(), here.begin(), here.end(),
                                std::back_inserter(lacking));
            if (!here.empty() && !lacking.empty()) {
                missing.tenses.push_back({block.titleKey, std::move(lacking)});
            }
        }
    }
    missing.thirdPersonOnly =
        !all.empty() && std::all_of(all.begin(), all.end(), [](Person person) {
            return person == Person::Il || person == Person::Ils;
        });
    return missing;
}

MissingWords inWords(const MissingForms& forms, const platform::Bundle& bundle,
                     const platform::SettingsStore& settings)
{
    MissingWords words;
    const auto title = [&](std::string_view key) {
        return data::tenseTitle(key, bundle, settings);
    };
    words.usedOnly = !forms.infinitiveOnly() && forms.usedTitleKeys.size() < forms.tenses.size();
    if (words.usedOnly) {
        for (const auto key : forms.usedTitleKeys) {
            append(words.tenses, title(key));
        }
        return words;
    }
    for (const auto& tense : forms.tenses) {
        const auto persons = named(tense.persons);
        append(words.tenses, title(tense.titleKey) + (persons.empty() ? "" : " (" + persons + ")"));
    }
    return words;
}

} // namespace lumora::detail
