// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "verbdb/report.h"

#include "verbdb/senses.h"
#include "verbdb/verb_facts.h"

#include <algorithm>
#include <map>
#include <ostream>
#include <set>
#include <utility>

namespace lumora::verbdb {

namespace {

using Counts = std::map<std::string, std::size_t>;

void print(const char* title, const Counts& counts, std::ostream& output)
{
    output << "\n" << title << "\n";
    for (const auto& [name, count] : counts) {
        output << "  " << name << "\t" << count << "\n";
    }
}

/// How many senses end in brackets: prepositions, registers, reflexives.
std::size_t bracketedSenses(const Verb& verb, std::size_t language)
{
    const auto senses = sensesOf(verb.translations[language]);
    return static_cast<std::size_t>(
        std::count_if(senses.begin(), senses.end(), [](const std::string& sense) {
            return withoutBrackets(sense).size() < sense.size();
        }));
}

void printKinds(const Content& content, std::ostream& output)
{
    Counts auxiliaries;
    Counts traits;
    Counts participles;
    Counts groups;
    Counts uses;
    Counts brackets;
    for (const auto& verb : content.verbs) {
        auxiliaries[std::string(kAuxiliaries[static_cast<std::size_t>(verb.entry.auxiliary)])] += 1;
        for (const auto& [name, flag] : kTraits) {
            traits[std::string(name)] += verb.entry.*flag ? 1 : 0;
        }
        if (const auto kinds = namesOf(verb.entry, kParticipleKinds); !kinds.empty()) {
            participles[kinds] += 1;
        }
        groups[std::to_string(content.conjugator.group(verb.entry))] += 1;
        uses[std::to_string(verb.use)] += 1;
        for (std::size_t language = 0; language < kLanguages.size(); ++language) {
            brackets[std::string(kLanguages[language])] += bracketedSenses(verb, language);
        }
    }
    print("verbs an auxiliary", auxiliaries, output);
    print("verbs a trait", traits, output);
    print("participles that do not agree", participles, output);
    print("verbs a group", groups, output);
    print("verbs a class of use", uses, output);
    print("senses with brackets", brackets, output);
}

} // namespace

void printReport(const Content& content, std::ostream& output)
{
    std::size_t shown = 0;
    std::size_t searched = 0;
    std::map<std::string, std::size_t> verbsOfModel;
    std::map<std::string, std::size_t> entriesOfHeadword;
    std::array<std::size_t, kLanguages.size()> senses{};
    std::array<std::set<std::string>, kLanguages.size()> texts;
    std::vector<std::string> withoutParticiple;
    for (const auto& model : content.conjugator.models().names()) {
        verbsOfModel[model] = 0;
    }
    for (const auto& verb : content.verbs) {
        const auto rows = content.conjugator.rows(verb.entry);
        const auto visible = static_cast<std::size_t>(std::count_if(
            rows.begin(), rows.end(), [](const conjugator::Row& row) { return row.shown; }));
        shown += visible;
        searched += rows.size() - visible;
        verbsOfModel[verb.entry.model] += 1;
        entriesOfHeadword[content.conjugator.headword(verb.entry)] += 1;
        for (std::size_t language = 0; language < kLanguages.size(); ++language) {
            const auto& text = verb.translations[language];
            senses[language] += sensesOf(text).size();
            texts[language].insert(text);
        }
        if (content.conjugator.models()
                .conjugate(verb.entry.model, verb.entry.infinitive)
                .participle[0]
                .empty()) {
            withoutParticiple.push_back(verb.entry.infinitive);
        }
    }

    output << "verbs              " << content.verbs.size() << "\n"
           << "rows shown         " << shown << "\n"
           << "rows for search    " << searched << "\n"
           << "models             " << verbsOfModel.size() << "\n";

    output << "\ntranslations       verbs  senses  different texts\n";
    for (std::size_t language = 0; language < kLanguages.size(); ++language) {
        output << "  " << kLanguages[language] << "\t" << content.verbs.size() << "\t"
               << senses[language] << "\t" << texts[language].size() << "\n";
    }

    printKinds(content, output);

    output << "\nverbs a model\n";
    std::vector<std::pair<std::string, std::size_t>> models(verbsOfModel.begin(),
                                                            verbsOfModel.end());
    std::stable_sort(models.begin(), models.end(),
                     [](const auto& a, const auto& b) { return a.second > b.second; });
    for (const auto& [model, count] : models) {
        output << "  " << model << "\t" << count << "\n";
    }

    output << "\nheadwords that stand twice or more\n";
    for (const auto& [headword, count] : entriesOfHeadword) {
        if (count > 1) {
            output << "  " << headword << "\t" << count << "\n";
        }
    }

    output << "\nverbs without a past participle\n";
    for (const auto& infinitive : withoutParticiple) {
        output << "  " << infinitive << "\n";
    }
}

} // namespace lumora::verbdb
