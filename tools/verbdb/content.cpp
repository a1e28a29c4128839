// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "verbdb/content.h"

#include "conjugator/model_table.h"
#include "conjugator/text_table.h"
#include "verbdb/senses.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <tuple>
#include <utility>

namespace lumora::verbdb {

namespace {

using conjugator::Auxiliary;
using conjugator::ModelTable;
using conjugator::TextTable;

enum Column : std::size_t {
    Id,
    Infinitive,
    Model,
    AuxiliaryVerb,
    Traits,
    Participle,
    Use,
    English
};

constexpr std::size_t kMaximalSenses = 3;
constexpr int kUseClasses = 5;

const std::vector<std::string>& verbHeader()
{
    static const std::vector<std::string> header = [] {
        std::vector<std::string> names{"id",     "infinitive", "model", "auxiliary",
                                       "traits", "participle", "use"};
        names.insert(names.end(), kLanguages.begin(), kLanguages.end());
        return names;
    }();
    return header;
}

std::string inQuotes(const std::string& text)
{
    return "\"" + text + "\"";
}

std::int64_t readId(const TextTable& table, const TextTable::Record& record)
{
    const auto& text = record.fields[Id];
    std::int64_t id = 0;
    const auto* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, id);
    if (error != std::errc() || stop != end || id <= 0) {
        table.refuse(record, "the id " + inQuotes(text) + " is not a positive whole number");
    }
    return id;
}

Auxiliary readAuxiliary(const TextTable& table, const TextTable::Record& record)
{
    const auto& text = record.fields[AuxiliaryVerb];
    const auto* const found = std::find(kAuxiliaries.begin(), kAuxiliaries.end(), text);
    if (found == kAuxiliaries.end()) {
        table.refuse(record, "unknown auxiliary " + inQuotes(text));
    }
    return static_cast<Auxiliary>(found - kAuxiliaries.begin());
}

/// Sets what the words of a column name; "-" is none.
template <std::size_t kCount>
void readFlags(const TextTable& table, const TextTable::Record& record, Column column,
               const std::array<FlagName, kCount>& names, conjugator::VerbEntry& entry)
{
    const std::string kind = column == Traits ? "trait" : "participle";
    const auto words = conjugator::split(record.fields[column], ",");
    if (words.size() == 1 && words[0] == "-") {
        return;
    }
    for (const auto& word : words) {
        const auto* const found = std::find_if(
            names.begin(), names.end(), [&](const FlagName& flag) { return flag.name == word; });
        if (found == names.end()) {
            table.refuse(record, "unknown " + kind + " " + inQuotes(word));
        }
        auto& flag = entry.*found->flag;
        if (flag) {
            table.refuse(record, inQuotes(word) + " stands twice");
        }
        flag = true;
    }
}

void readTraits(const TextTable& table, const TextTable::Record& record,
                conjugator::VerbEntry& entry)
{
    readFlags(table, record, Traits, kTraits, entry);
    readFlags(table, record, Participle, kParticipleKinds, entry);
    if (entry.pronominal && entry.auxiliary != Auxiliary::Etre) {
        table.refuse(record, "a pronominal verb takes \"être\"");
    }
    if ((entry.en || entry.indirectPronoun) && !entry.pronominal) {
        table.refuse(record,
                     "only a pronominal verb can be " + inQuotes(entry.en ? "en" : "indirect"));
    }
    if (entry.plural && !entry.impersonal) {
        table.refuse(record, "only an impersonal verb can be \"plural\"");
    }
}

int readUse(const TextTable& table, const TextTable::Record& record)
{
    const auto& text = record.fields[Use];
    if (text.size() != 1 || text[0] < '1' || text[0] > '0' + kUseClasses) {
        table.refuse(record, "the use " + inQuotes(text) + " is not a class from 1 to 5");
    }
    return text[0] - '0';
}

std::string readTranslation(const TextTable& table, const TextTable::Record& record,
                            std::size_t language)
{
    const auto& text = record.fields[English + language];
    const std::string name(kLanguages[language]);
    const auto senses = sensesOf(text);
    if (text.empty() || text == "-") {
        table.refuse(record, "the " + name + " translation is missing");
    }
    if (!hasClosedBrackets(text)) {
        table.refuse(record, "the brackets in " + name + " are not in pairs");
    }
    if (senses.size() > kMaximalSenses) {
        table.refuse(record, "more than three senses in " + name);
    }
    for (const auto& sense : senses) {
        const auto bare = withoutBrackets(sense);
        if (bare.empty() || bare.starts_with(' ') || bare.ends_with(' ') ||
            bare.find(',') != std::string::npos) {
            table.refuse(record, "the " + name + " senses are not divided by \", \"");
        }
    }
    return text;
}

Verb readVerb(const TextTable& table, const TextTable::Record& record, const ModelTable& models)
{
    Verb verb;
    verb.id = readId(table, record);
    auto& entry = verb.entry;
    entry.infinitive = record.fields[Infinitive];
    entry.model = record.fields[Model];
    if (!models.contains(entry.model)) {
        table.refuse(record, "unknown model " + inQuotes(entry.model));
    }
    if (const auto misfit = models.misfit(entry.model, entry.infinitive); !misfit.empty()) {
        table.refuse(record, misfit);
    }
    entry.auxiliary = readAuxiliary(table, record);
    readTraits(table, record, entry);
    verb.use = readUse(table, record);
    for (std::size_t language = 0; language < kLanguages.size(); ++language) {
        verb.translations[language] = readTranslation(table, record, language);
    }
    return verb;
}

} // namespace

Content readContent(const std::filesystem::path& folder)
{
    const auto modelTable = TextTable::read(folder / "models.tsv", ModelTable::header());
    ModelTable models(modelTable);
    for (const auto* auxiliary : {"avoir", "être"}) {
        if (!models.contains(auxiliary)) {
            throw conjugator::TableError(modelTable.file(), 1,
                                         std::string("there is no model \"") + auxiliary + "\"");
        }
    }

    const auto retiredTable =
        TextTable::read(folder / "retired_ids.tsv", {"id", "infinitive", "reason"});
    std::map<std::int64_t, std::string> retired;
    for (const auto& record : retiredTable.records()) {
        retired.emplace(readId(retiredTable, record), record.fields[Infinitive]);
    }

    const auto verbTable = TextTable::read(folder / "verbs.tsv", verbHeader());
    std::vector<Verb> verbs;
    std::map<std::int64_t, std::size_t> lineOfId;
    // Homographs differ in their model, their auxiliary or their pronoun.
    using Key = std::tuple<std::string, std::string, Auxiliary, bool, bool>;
    std::map<Key, std::size_t> lineOfVerb;
    for (const auto& record : verbTable.records()) {
        auto verb = readVerb(verbTable, record, models);
        if (const auto [at, fresh] = lineOfId.emplace(verb.id, record.line); !fresh) {
            verbTable.refuse(record, "the id " + std::to_string(verb.id) +
                                         " stands already in line " + std::to_string(at->second));
        }
        if (const auto gone = retired.find(verb.id); gone != retired.end()) {
            verbTable.refuse(record, "the id " + std::to_string(verb.id) + " is retired; it was " +
                                         inQuotes(gone->second));
        }
        const auto& entry = verb.entry;
        const auto [at, fresh] = lineOfVerb.emplace(
            Key(entry.infinitive, entry.model, entry.auxiliary, entry.pronominal, entry.en),
            record.line);
        if (!fresh) {
            verbTable.refuse(record, inQuotes(entry.infinitive) +
                                         " with the same model and "
                                         "auxiliary stands already in line " +
                                         std::to_string(at->second));
        }
        verbs.push_back(std::move(verb));
    }
    if (verbs.empty()) {
        throw conjugator::TableError(verbTable.file(), 1, "there are no verbs");
    }
    std::sort(verbs.begin(), verbs.end(), [](const Verb& a, const Verb& b) { return a.id < b.id; });
    return {conjugator::Conjugator(std::move(models)), std::move(verbs)};
}

} // namespace lumora::verbdb
